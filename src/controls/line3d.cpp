#include "controls/line3d.h"

#include <algorithm>

namespace controls {

Line3D::Line3D(toolkit::Form& form, std::string name)
    : DrawnControl(form, toolkit::ControlKind::Drawn, std::move(name), "", false) {}

toolkit::Size Line3D::NaturalSize(toolkit::Size text) const {
    // The dialogs' font is 13 pixels high at 96 dots per inch.
    return {0, std::max(2, 2 * text.height / 13)};
}

// The light line goes first: where the control is only one pixel high, the shadow covers it.
void Line3D::Paint(toolkit::Canvas& canvas, toolkit::Rect client) {
    constexpr toolkit::Colour white = 0xFFFFFF;
    const toolkit::Colour shadow = canvas.Translate(toolkit::SystemColour(16));
    const int middle = client.top + client.height / 2;
    canvas.Line({client.left, middle}, {client.Right(), middle}, white);
    canvas.Line({client.left, client.top}, {client.Right(), client.top}, shadow);
}

}  // namespace controls
