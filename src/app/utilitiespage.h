#pragma once

#include "toolkit/layout.h"

namespace platform {
class Clock;
}
namespace tools {
class Launchers;
}

namespace app {

class frmMain;

// Makes the controls of the page " Utilities": the launchers, the choice of the time source, the
// program's own options, the ends of the session and the ways to the dialogs. `launchers` must live
// as long as the form.
toolkit::Box AddUtilitiesPage(frmMain& form, platform::Clock& clock,
                              const tools::Launchers& launchers);

}  // namespace app
