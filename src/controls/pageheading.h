#pragma once

#include <string>

#include "toolkit/layout.h"

namespace toolkit {
class Form;
}

namespace controls {

// What stands on top of each page: its heading and an engraved line over the whole width. The line
// is named after the label, "Line3D(lblTuning)".
toolkit::Box PageHeading(toolkit::Form& form, const std::string& labelName, std::string caption);

}  // namespace controls
