#include "platform/simulated/forms.h"

#include <algorithm>
#include <stdexcept>

#include "platform/simulated/journal.h"

namespace platform::simulated {

void Forms::Open(toolkit::Form& form) {
    journal_.Note([&] { return "OpenForm " + form.Name(); });
    open_.push_back(&form);
}

void Forms::RunModal(toolkit::Form& form) {
    journal_.Note([&] { return "ShowModal " + form.Name(); });
    auto script = std::find_if(scripts_.begin(), scripts_.end(),
                               [&](const auto& entry) { return entry.first == form.Name(); });
    if (script == scripts_.end()) {
        throw std::logic_error("nobody answers the dialog " + form.Name());
    }
    auto user = std::move(script->second);
    scripts_.erase(script);
    user(form);
    if (form.Visible()) throw std::logic_error("the dialog " + form.Name() + " was left open");
}

void Forms::Close(toolkit::Form& form) {
    journal_.Note([&] { return "CloseForm " + form.Name(); });
    std::erase(open_, &form);
}

void Forms::WhenModal(std::string formName, std::function<void(toolkit::Form&)> user) {
    scripts_.emplace_back(std::move(formName), std::move(user));
}

}  // namespace platform::simulated
