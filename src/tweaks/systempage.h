#pragma once

#include "toolkit/layout.h"

namespace platform {
class Clock;
class Locale;
}  // namespace platform
namespace toolkit {
class Form;
}

namespace tweaks {

// Makes the controls of the page "Windows Tuning #1", in the order in which one reads them. Clock
// and locale are used for as long as the form lives.
toolkit::Box AddSystemPage(toolkit::Form& form, platform::Clock& clock,
                           const platform::Locale& locale);

}  // namespace tweaks
