#pragma once

#include <cstdint>

#include "toolkit/canvas.h"
#include "toolkit/view.h"

namespace controls {

enum class Corner : std::uint8_t {
    // None of the corners departs from the rectangle, and no region is needed.
    Square,
    Round,
    // Round, by half of the button's height.
    HalfRound,
    // Straight across.
    Cut,
    // A square taken out.
    Notch,
    // The whole button is one ellipse.
    Ellipse,
};

// Which corners have that form, to be added; the others are square.
inline constexpr std::uint8_t UpperLeft = 1;
inline constexpr std::uint8_t UpperRight = 2;
inline constexpr std::uint8_t LowerLeft = 4;
inline constexpr std::uint8_t LowerRight = 8;
inline constexpr std::uint8_t AllCorners = 15;

struct Shape {
    Corner corner = Corner::Square;
    // Pixels along the edges.
    std::uint8_t size = 0;
    std::uint8_t corners = AllCorners;
};

// One line around the shape that fills the area, `depth` pixels within it; the second colour has
// the right and the lower side. An ellipse has the first all around.
void DrawOutline(toolkit::Canvas& canvas, toolkit::Rect area, Shape shape, int depth,
                 toolkit::Colour upperLeft, toolkit::Colour lowerRight);

// The outline of a window with this client area. The area is inflated first, so that the straight
// sides lie safely outside of it; that of an ellipse is also moved by a pixel each way, since the
// region of an ellipse is smaller to the right and below than the line drawn around it. Empty for
// a square shape.
toolkit::Region RegionOf(toolkit::Rect client, Shape shape);

}  // namespace controls
