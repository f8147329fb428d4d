#pragma once

#include "platform/machine.h"
#include "toolkit/layout.h"

namespace toolkit {
class Form;
}

namespace app {

class frmMain;

// The three ends of the user's session. Each asks first, unless `chkRebootQuestion` is set, then
// asks the system for the end, forced when `chkForceReboot` is 1, and unloads the main window. So
// nothing of closing runs before the answer, and the system's own end runs while the program
// closes. A refusal of the system is not noticed: the program ends and the system runs on, on
// purpose. A failure passes to the caller and leaves the window open.
void DoLogoff(toolkit::Form& mainForm, const platform::Machine& machine);
void DoReboot(toolkit::Form& mainForm, const platform::Machine& machine);
void DoShutdown(toolkit::Form& mainForm, const platform::Machine& machine);

// Makes the frame with the buttons cmdShutdown(0) to (2) and cmdLockWS.
toolkit::Box AddSessionButtons(frmMain& form, platform::Clock& clock);

}  // namespace app
