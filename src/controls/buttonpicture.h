#pragma once

#include <optional>

#include "toolkit/canvas.h"

namespace controls {

// Draws a picture with its upper left corner there. `mask` is the colour of a bitmap's pixels that
// let what is behind them through; an icon knows its own. Grey keeps the brightness only.
void DrawPicture(toolkit::Canvas& canvas, const toolkit::Picture& picture, toolkit::Point at,
                 std::optional<toolkit::Colour> mask, bool grey);

}  // namespace controls
