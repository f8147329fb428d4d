#include "cleanup/cleanuppage.h"

#include "platform/machine.h"

namespace cleanup {

CleanUpPage::CleanUpPage(toolkit::Form& form, const platform::Machine& machine)
    : tempFiles(form, machine),
      internetCache(form, machine.internetCache, machine.locale, machine.clock) {}

toolkit::Box CleanUpPage::Layout() const {
    return toolkit::Column({Stretch(tempFiles.Layout()), internetCache.Layout()});
}

}  // namespace cleanup
