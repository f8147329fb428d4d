#pragma once

#include <initializer_list>

#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/layout.h"

namespace platform {
class Clock;
}
namespace toolkit {
class Form;
}

// What the catalogue's pages are put together from. Each function makes the named controls on the
// form, in the order in which they are given, and returns the box that places them.
namespace tweaks {

struct Named {
    const char* name;
    const char* caption;
};

// A button by its name and its properties as chameleonButton keeps them.
struct StoredButton {
    const char* name;
    const char* properties;
};

toolkit::Box CheckBoxOn(toolkit::Form& form, Named box);
toolkit::Box LabelOn(toolkit::Form& form, Named label);
toolkit::Box TextBoxOn(toolkit::Form& form, const char* name, toolkit::TextBoxStyle style = {});
toolkit::Box ComboBoxOn(toolkit::Form& form, const char* name, toolkit::ComboBoxStyle style = {});

// Two boxes side by side; the right ones of all such lines stand below each other.
toolkit::Box CheckBoxPair(toolkit::Form& form, Named left, Named right);

// Check boxes one below the other, and the same in a frame.
toolkit::Box CheckBoxColumn(toolkit::Form& form, std::initializer_list<Named> boxes);
toolkit::Box CheckBoxGroup(toolkit::Form& form, Named frame, std::initializer_list<Named> boxes);

// The row of a page's own buttons, at the right end of it.
toolkit::Box ButtonsOfPage(toolkit::Form& form, platform::Clock& clock,
                           std::initializer_list<StoredButton> buttons);

}  // namespace tweaks
