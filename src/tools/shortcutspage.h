#pragma once

#include "toolkit/layout.h"

namespace toolkit {
class Form;
}

namespace tools {

// Makes the page " Shortcuts": a table of Windows' own keyboard shortcuts, to be read only.
toolkit::Box AddShortcutsPage(toolkit::Form& form);

}  // namespace tools
