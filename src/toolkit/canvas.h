#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"

namespace toolkit {

// A colour as the platform counts it: 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
using Colour = std::uint32_t;

constexpr Colour SystemColour(int index) {
    return 0x80000000u + static_cast<Colour>(index);
}

// What a control that draws itself draws on. Each method is a few calls of the platform.
class Canvas {
  public:
    virtual ~Canvas() = default;

    // The colour itself, a system colour looked up.
    virtual Colour Translate(Colour colour) const = 0;
    virtual void FillRect(Rect area, Colour colour) = 0;
    virtual void FrameRect(Rect area, Colour colour) = 0;
    // From the first point to the second, which is not drawn itself.
    virtual void Line(Point from, Point to, Colour colour) = 0;
    // The outline of the ellipse that fills the rectangle.
    virtual void Ellipse(Rect area, Colour colour) = 0;
    virtual void Pixel(Point at, Colour colour) = 0;
    // Draws over `area` what the parent shows behind it, from the copy that the view keeps.
    virtual void Background(Rect area) = 0;

    // For what follows, instead of the control's font.
    virtual void UseFont(const Font& font) = 0;
    // Centred lines, broken at blanks where the area is too narrow, from its upper edge. An
    // ampersand marks the access key and is not drawn; a doubled one is drawn once.
    virtual void Text(Rect area, std::string_view text, Colour colour) = 0;
    // The room that Text takes when it may be that wide.
    virtual Size TextSize(std::string_view text, int width) const = 0;
    // Always visible, whatever is behind it.
    virtual void FocusRect(Rect area) = 0;

    // The picture with its upper left corner there: an icon over what is behind it, a bitmap with
    // all its pixels.
    virtual void Draw(const Picture& picture, Point at) = 0;
    // A bitmap's own pixels.
    virtual Pixels PixelsOf(const Picture& bitmap) const = 0;
    // What has been drawn there so far.
    virtual Pixels PixelsAt(Rect area) const = 0;
    virtual void PutPixels(Rect area, const Pixels& pixels) = 0;
};

}  // namespace toolkit
