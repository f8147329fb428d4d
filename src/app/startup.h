#pragma once

#include "platform/machine.h"

namespace app {

class frmMain;

// The start-up sequence of the main window, from the first-start warning to the mark of the
// connection type, in its fixed order. A statement that fails is passed over in silence and the
// next one runs. Ends the process when the warning is refused; unloads the window when the
// operating system is not the one it was made for.
void StartUp(frmMain& form, const platform::Machine& machine);

}  // namespace app
