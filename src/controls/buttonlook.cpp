#include "controls/buttonlook.h"

namespace controls {

using toolkit::Canvas;
using toolkit::Colour;
using toolkit::Rect;
using toolkit::SystemColour;

namespace {

// Pixels between the button's edge and its caption or focus rectangle.
constexpr int TextInset = 4;

struct WorkingColours {
    explicit WorkingColours(const Canvas& canvas)
        : face(canvas.Translate(SystemColour(15))),
          shadow(canvas.Translate(SystemColour(16))),
          text(canvas.Translate(SystemColour(18))),
          highlight(canvas.Translate(SystemColour(20))),
          darkShadow(canvas.Translate(SystemColour(21))),
          light(canvas.Translate(SystemColour(22))) {}

    Colour face;
    Colour shadow;
    Colour text;
    Colour highlight;
    Colour darkShadow;
    Colour light;
};

void DrawCaption(Canvas& canvas, Rect client, const ButtonFace& face,
                 const WorkingColours& colours) {
    Rect area = client.Inset(TextInset);
    if (face.down) {
        ++area.left;
        ++area.top;
    }
    if (face.enabled) {
        canvas.Text(area, face.caption, colours.text, toolkit::TextAlign::Centre);
        return;
    }
    const Rect behind{area.left + 1, area.top + 1, area.width, area.height};
    canvas.Text(behind, face.caption, colours.highlight, toolkit::TextAlign::Centre);
    canvas.Text(area, face.caption, colours.shadow, toolkit::TextAlign::Centre);
}

// One line on each of the four sides; a line's second point is not drawn, so the lower right one
// owns both of its corners.
void DrawBevel(Canvas& canvas, Rect area, Colour upperLeft, Colour lowerRight) {
    const int right = area.Right() - 1;
    const int bottom = area.Bottom() - 1;
    canvas.Line({area.left, area.top}, {right, area.top}, upperLeft);
    canvas.Line({area.left, area.top}, {area.left, bottom}, upperLeft);
    canvas.Line({right, area.top}, {right, bottom}, lowerRight);
    canvas.Line({area.left, bottom}, {right + 1, bottom}, lowerRight);
}

void DrawEdges(Canvas& canvas, Rect area, bool down, const WorkingColours& colours) {
    if (down) {
        DrawBevel(canvas, area, colours.darkShadow, colours.highlight);
        DrawBevel(canvas, area.Inset(1), colours.shadow, colours.light);
    } else {
        DrawBevel(canvas, area, colours.highlight, colours.darkShadow);
        DrawBevel(canvas, area.Inset(1), colours.light, colours.shadow);
    }
}

}  // namespace

void DrawButton(Canvas& canvas, Rect client, const ButtonFace& face) {
    constexpr Colour black = 0;
    const WorkingColours colours(canvas);
    canvas.FillRect(client, colours.face);
    if (face.isDefault) canvas.FrameRect(client, black);
    DrawCaption(canvas, client, face, colours);
    DrawEdges(canvas, face.isDefault ? client.Inset(1) : client, face.down, colours);
    if (face.focusRect) canvas.FocusRect(client.Inset(TextInset));
}

}  // namespace controls
