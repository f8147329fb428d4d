#pragma once

#include "toolkit/layout.h"

namespace platform {
struct Machine;
class SystemFacts;
}  // namespace platform
namespace toolkit {
class Form;
}

namespace tweaks {

// Makes the controls of the page "Systempfade ändern": fourteen rows of a name, a path and a button
// that lets the user choose another one. A failure there is shown in a box of its own. The
// machine's services are used for as long as the form lives.
toolkit::Box AddPathsPage(toolkit::Form& form, const platform::Machine& machine);

// Puts the folders of a German Windows on drive C into the fourteen rows, one after the other. A
// failure passes to the caller; the rows before it keep their new paths.
void SetDefaultPaths(toolkit::Form& form, const platform::SystemFacts& facts);

}  // namespace tweaks
