#pragma once

#include <span>

namespace controls {
class cToolTip;
}
namespace toolkit {
class Form;
}

// The program's manual on the screen: what an option does, what Windows does without it, and what
// can go wrong.
namespace tweaks {

struct HelpText {
    const char* control;
    const char* text;
};

// One row a control; a control that has none is not in the list.
std::span<const HelpText> HelpTexts();

// Sets the tips up as the texts want them: after a second of rest, and for 3320000 ms. Of that
// number the system takes the lower 16 bits, which are 43 seconds where they count without a sign;
// where they count with one, they are below zero and the tips stay for the system's own time, about
// five seconds. Then gives each control of the form, whose windows must exist, its text.
void HangHelpTexts(const toolkit::Form& form, controls::cToolTip& tips);

}  // namespace tweaks
