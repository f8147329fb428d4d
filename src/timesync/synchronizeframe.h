#pragma once

#include "toolkit/layout.h"

namespace platform {
class Clock;
}
namespace toolkit {
class Form;
}

namespace timesync {

// Makes the frame "Uhrzeit und Kalender synchronisieren" with the choice of the source.
toolkit::Box AddSynchronizeFrame(toolkit::Form& form, platform::Clock& clock);

}  // namespace timesync
