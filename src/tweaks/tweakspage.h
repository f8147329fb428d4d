#pragma once

#include "toolkit/layout.h"

namespace platform {
struct Machine;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// Makes the controls of the page "Windows Tuning #2", in the order in which one reads them. The
// machine's services are used for as long as the form lives.
toolkit::Box AddTweaksPage(toolkit::Form& form, const platform::Machine& machine);

}  // namespace tweaks
