#pragma once

#include "toolkit/layout.h"

namespace toolkit {
class Form;
}

namespace tools {

class Launchers;

// Makes the frame fraPrograms with its 24 labels, each of which starts a tool of the system when it
// is clicked and is red while the mouse is over it. `launchers` must live as long as the form.
toolkit::Box AddLauncherLabels(toolkit::Form& form, const Launchers& launchers);

// Makes all those labels black. The red ends with the first move over what surrounds them.
void ResetLabelColors(toolkit::Form& form);

}  // namespace tools
