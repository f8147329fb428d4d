#pragma once

#include <string_view>

#include "toolkit/canvas.h"

namespace controls {

// What one picture of a button depends on.
struct ButtonFace {
    std::string_view caption;
    bool enabled = true;
    // Pressed now, or kept pressed as a check box.
    bool down = false;
    // The button that Return presses.
    bool isDefault = false;
    bool focusRect = false;
};

// The look of ButtonType 2: a face with a bevel of two lines, which turns inside out when the
// button goes down. It knows no hovered picture of its own. Drawn in a fixed order: face and frame,
// caption, edges, focus rectangle.
void DrawButton(toolkit::Canvas& canvas, toolkit::Rect client, const ButtonFace& face);

}  // namespace controls
