#pragma once

#include "toolkit/layout.h"

namespace platform {
class Clock;
}

namespace app {

class frmMain;

// Makes the frame with the buttons cmdShutdown(0) to (2) and cmdLockWS.
toolkit::Box AddSessionButtons(frmMain& form, platform::Clock& clock);

}  // namespace app
