#include "tweaks/passes.h"

#include "platform/locale.h"
#include "runtime/mistake.h"
#include "tweaks/catalogue.h"
#include "tweaks/order.h"

namespace tweaks {

Passes::Passes(toolkit::Form& form, const platform::Machine& machine)
    : form_(form), machine_(machine), registry_(machine.registry, machine.locale) {}

void Passes::Read() {
    Walk(ReadOrder(), ReadOption);
}

void Passes::Write() {
    Walk(WriteOrder(), WriteOption);
}

void Passes::Walk(std::span<const std::string_view> order, OptionStep step) {
    form_.SetPointer(toolkit::Hourglass);
    const PassContext pass{form_, registry_, machine_.locale.Signs(), machine_};
    for (std::string_view name : order) {
        const Option* option = FindOption(name);
        if (!option) throw runtime::Mistake("no option " + std::string(name));
        step(pass, *option);
    }
    form_.SetPointer(toolkit::DefaultPointer);
}

}  // namespace tweaks
