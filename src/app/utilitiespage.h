#pragma once

#include "toolkit/layout.h"

namespace platform {
class Clock;
}

namespace app {

class frmMain;

// Makes the controls of the page " Utilities": the program's own options and the choice of the
// time source.
toolkit::Box AddUtilitiesPage(frmMain& form, platform::Clock& clock);

}  // namespace app
