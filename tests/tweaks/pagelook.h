#pragma once

#include <string>
#include <vector>

#include "toolkit/form.h"
#include "toolkit/layout.h"

namespace tweak_tests {

// Tahoma 8 at 96 dots per inch, a little wider than it is.
struct WideText : toolkit::TextMeasure {
    toolkit::Size SizeOf(std::string_view text, bool bold) const override;
    int Scale(int pixels) const override { return pixels; }
};

// What the tab strip leaves of the window to a page.
inline constexpr toolkit::Rect PageArea{0, 0, 630, 390};

// The controls of the form's layout, placed in that area.
std::vector<toolkit::Placement> Placed(const toolkit::Form& form);

// Checks of a form with one page: nothing outside of the area, no two controls on each other, room
// for every caption, and the page's own buttons at its bottom right.
void CheckFits(const toolkit::Form& form);
void CheckCaptionsHaveRoom(const toolkit::Form& form);
void CheckAtBottomRight(const toolkit::Form& form, std::string_view lastButton);

// Which controls stand in which frame of the page, by their areas: a line for each frame, the
// free-standing ones first.
std::string GroupsOf(const toolkit::Form& form);

}  // namespace tweak_tests
