#pragma once

#include <optional>

#include "platform/machine.h"

namespace controls {
class cToolTip;
}
namespace toolkit {
class Form;
}

namespace app {

// Everything that happens when the main window is asked to close, whoever asks: the window's facts
// and the program's options are stored, the tips are released, then the process ends. It never
// refuses. Does not return unless a step fails (runtime::Failure), and then the rest of the steps
// stays undone.
void CloseProgram(toolkit::Form& form, const platform::Machine& machine,
                  std::optional<controls::cToolTip>& tips);

}  // namespace app
