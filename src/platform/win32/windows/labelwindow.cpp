#include "platform/win32/windows/labelwindow.h"

#include <cstdlib>

namespace platform::win32 {
namespace {

// Of 255, in the eye's weights.
int Brightness(COLORREF colour) {
    return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

// A user may have dark windows, as in high contrast, where black could not be read.
bool CanBeRead(COLORREF colour) {
    constexpr int LeastDifference = 32;
    const int behind = Brightness(GetSysColor(COLOR_BTNFACE));
    return std::abs(Brightness(colour) - behind) >= LeastDifference;
}

}  // namespace

ControlWindow::Recipe LabelWindow::Describe() const {
    DWORD style = SS_LEFT;
    if (IsHeard()) style |= SS_NOTIFY;
    // A path that does not fit is told whole by a tip, for which the label must see the mouse.
    if (control_.Style() == toolkit::LabelStyle::Path) {
        style |= SS_PATHELLIPSIS | SS_NOPREFIX | SS_NOTIFY;
    }
    return {L"STATIC", style};
}

HFONT LabelWindow::Font() const {
    const bool heading = control_.Style() == toolkit::LabelStyle::Heading;
    return heading ? surroundings_.screen.Heading() : surroundings_.screen.Plain();
}

// The second press of a double click comes as another code, so it is no second click.
void LabelWindow::Notified(UINT code) {
    if (code == STN_CLICKED) Click();
}

// BM_CLICK is how a script presses whatever can be pressed; labels do not know it by themselves.
bool LabelWindow::Hear(UINT message) {
    switch (message) {
        case WM_MOUSEMOVE:
            Guard([this] { control_.MouseMoved(); });
            return true;
        case BM_CLICK:
            Click();
            return true;
        default:
            return false;
    }
}

void LabelWindow::Click() {
    Guard([this] { control_.Click(); });
}

void LabelWindow::SetColours(HDC dc) const {
    const auto colour = control_.TextColour();
    if (colour && CanBeRead(*colour)) SetTextColor(dc, *colour);
}

}  // namespace platform::win32
