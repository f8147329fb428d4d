#pragma once

#include <cstdint>
#include <string_view>

#include "toolkit/geometry.h"

namespace toolkit {

// A colour as the platform counts it: 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
using Colour = std::uint32_t;

constexpr Colour SystemColour(int index) {
    return 0x80000000u + static_cast<Colour>(index);
}

enum class TextAlign { Left, Centre };

// What a control that draws itself draws on. Each method is one or two calls of the platform.
class Canvas {
  public:
    virtual ~Canvas() = default;

    // The colour itself, a system colour looked up.
    virtual Colour Translate(Colour colour) const = 0;
    virtual void FillRect(Rect area, Colour colour) = 0;
    virtual void FrameRect(Rect area, Colour colour) = 0;
    // From the first point to the second, which is not drawn itself.
    virtual void Line(Point from, Point to, Colour colour) = 0;
    // One line of text in the control's font, centred between top and bottom. An ampersand marks
    // the access key and is not drawn; a doubled one is drawn once.
    virtual void Text(Rect area, std::string_view text, Colour colour, TextAlign align) = 0;
    virtual Size TextSize(std::string_view text) const = 0;
    virtual void FocusRect(Rect area) = 0;
};

}  // namespace toolkit
