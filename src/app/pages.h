#pragma once

#include <optional>

#include "cleanup/cleanuppage.h"
#include "platform/machine.h"
#include "toolkit/layout.h"

namespace tools {
class Launchers;
}

namespace app {

class frmMain;

// Makes the tab control with its eight pages; a page's controls come from the room of their tool.
// `launchers` must live as long as the form. Makes `cleanUp`, which must, too.
toolkit::Box AddPages(frmMain& form, const platform::Machine& machine,
                      const tools::Launchers& launchers,
                      std::optional<cleanup::CleanUpPage>& cleanUp);

// Makes the row of buttons below the pages.
toolkit::Box AddWindowButtons(frmMain& form, const platform::Machine& machine);

}  // namespace app
