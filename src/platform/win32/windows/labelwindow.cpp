#include "platform/win32/windows/labelwindow.h"

#include <cstdlib>

#include "platform/win32/text.h"

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

// A path that is cut has itself for a tip, unless it has another.
std::string LabelWindow::TipText() const {
    const std::string& tip = control_.ToolTip();
    if (!tip.empty() || control_.Style() != toolkit::LabelStyle::Path) return tip;
    RECT client{};
    GetClientRect(Window(), &client);
    const bool isCut = surroundings_.screen.WidthOf(ToWide(control_.Caption())) > client.right;
    return isCut ? control_.Caption() : tip;
}

// The second press of a double click comes as another code, so it is no second click.
void LabelWindow::Notified(UINT code) {
    if (code == STN_CLICKED) Click();
}

// BM_CLICK is how a script presses whatever can be pressed; labels do not know it by themselves.
LRESULT LabelWindow::Hear(const HookedMessage& hooked) {
    switch (hooked.message) {
        case WM_MOUSEMOVE:
            Guard([this] { control_.MouseMoved(); });
            return 0;
        case BM_CLICK:
            Click();
            return 0;
        default:
            return control_.IsTabStop() ? HearAsLink(hooked) : hooked.Pass();
    }
}

// For the form a link is no text, which the arrow keys would pass over, and Return is its own.
LRESULT LabelWindow::HearAsLink(const HookedMessage& hooked) {
    switch (hooked.message) {
        case WM_GETDLGCODE: {
            const auto* key = reinterpret_cast<const MSG*>(hooked.lParam);
            const bool isReturn = key && key->wParam == VK_RETURN;
            return DLGC_BUTTON | (isReturn ? DLGC_WANTMESSAGE : 0);
        }
        case WM_KEYDOWN: {
            const bool presses = hooked.wParam == VK_SPACE || hooked.wParam == VK_RETURN;
            // Once, however long the key is held.
            if (presses && !(HIWORD(hooked.lParam) & KF_REPEAT)) Click();
            return 0;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            Repaint();
            return 0;
        case WM_PAINT:
            return PaintLink(hooked);
        default:
            return hooked.Pass();
    }
}

// The rectangle inverts what is there, so all of that must be drawn anew.
LRESULT LabelWindow::PaintLink(const HookedMessage& hooked) {
    if (!HasFocus()) return hooked.Pass();
    Repaint();
    const LRESULT result = hooked.Pass();
    RECT client{};
    GetClientRect(Window(), &client);
    const HDC dc = GetDC(Window());
    DrawFocusRect(dc, &client);
    ReleaseDC(Window(), dc);
    return result;
}

void LabelWindow::Click() {
    Guard([this] { control_.Click(); });
}

void LabelWindow::SetColours(HDC dc) const {
    const auto colour = control_.TextColour();
    if (colour && CanBeRead(*colour)) SetTextColor(dc, *colour);
}

}  // namespace platform::win32
