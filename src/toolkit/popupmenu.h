#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/controls.h"
#include "toolkit/geometry.h"

namespace toolkit {

// One line of a pop-up menu. Without a caption it is a separator. In the caption a doubled
// ampersand stands for one, a single one marks the access key.
struct MenuItem {
    std::string name;
    std::string caption;
    Handler onClick;
    // A disabled item is shown grey and cannot be chosen.
    bool enabled = true;

    bool IsSeparator() const { return caption.empty(); }
};

// A menu that stands in no menu bar. Its form keeps it.
struct PopupMenu {
    std::string name;
    std::vector<MenuItem> items;
    // Where on the screen it opens; without a place at the mouse.
    std::optional<Point> place = {};
};

}  // namespace toolkit
