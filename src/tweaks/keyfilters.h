#pragma once

namespace platform {
class Beeper;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// Lets only certain keys through to the fields that take a number: every other typed character is
// swallowed with a beep. Fields that the form lacks are passed over. Pasted text and text set by
// the program pass, so that a field may hold anything all the same; Return and Escape belong to the
// window and reach no field. The beeper is used for as long as the form lives.
void ConnectKeyFilters(toolkit::Form& form, platform::Beeper& beeper);

}  // namespace tweaks
