#pragma once

namespace platform {
class Memory;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// Gives the control a value in the words of presetlists.h; Leave is none of them. The control's
// events run as after a click, and act at once where they do. A failure of theirs passes on; the
// control holds the value all the same.
void SetToPreset(toolkit::Form& form, const platform::Memory& memory, const char* control,
                 const char* value);

// Connects the buttons "Standard" and "Empfohlen" of all pages, which the form must have. They set
// controls and do no more: nothing is asked, told, stored or written by the buttons themselves. The
// first failure ends the button's list, what is set by then stays, and the failure passes on. The
// memory is used for as long as the form lives.
void ConnectPresets(toolkit::Form& form, const platform::Memory& memory);

}  // namespace tweaks
