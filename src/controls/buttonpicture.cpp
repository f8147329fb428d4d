#include "controls/buttonpicture.h"

namespace controls {

using toolkit::Picture;
using toolkit::Pixels;

namespace {

// Between a Colour and a pixel, which have red and blue the other way round.
std::uint32_t ToPixel(toolkit::Colour colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

// The three colours as the eye weighs them.
std::uint32_t Grey(std::uint32_t pixel) {
    const std::uint32_t brightness =
        ((pixel >> 16 & 0xFF) * 77 + (pixel >> 8 & 0xFF) * 151 + (pixel & 0xFF) * 28) >> 8;
    return brightness * 0x10101;
}

}  // namespace

// Bitmaps are masked by their own pixels, since those on the screen may have fewer colours. Of an
// icon, the pixels are those that differ once it is drawn.
void DrawPicture(toolkit::Canvas& canvas, const Picture& picture, toolkit::Point at,
                 std::optional<toolkit::Colour> mask, bool grey) {
    const bool isIcon = picture.What() == Picture::Kind::Icon;
    const auto* own = dynamic_cast<const toolkit::PixelPicture*>(&picture);
    if (!grey && !own && (isIcon || !mask)) {
        canvas.Draw(picture, at);
        return;
    }
    const toolkit::Rect area{at.x, at.y, picture.Extent().width, picture.Extent().height};
    const Pixels behind = canvas.PixelsAt(area);
    if (isIcon) canvas.Draw(picture, at);
    Pixels pixels = own      ? own->Content()
                    : isIcon ? canvas.PixelsAt(area)
                             : canvas.PixelsOf(picture);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const bool through = isIcon ? pixels[i] == behind[i] : mask && pixels[i] == ToPixel(*mask);
        if (through) {
            pixels[i] = behind[i];
        } else if (grey) {
            pixels[i] = Grey(pixels[i]);
        }
    }
    canvas.PutPixels(area, pixels);
}

}  // namespace controls
