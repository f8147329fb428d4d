#include "endtoend/captionfit.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "endtoend/tabs.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FontHandle;
using platform::win32::ToWide;

// The headings of the pages, which stand in larger, bold letters.
constexpr const char* Headings[] = {"lblTuning", "lblWindows2", "lblSystemPaths", "lblIECache",
                                    "lblMisc",   "Label7",      "lblShortcuts",   "lblUtilities"};

// Pixels at 96 dots per inch: the mark of a check box with its distance to the text, the line of a
// frame before and behind its caption, the border of a button and of a text box.
constexpr int CheckMark = 13 + 3;
constexpr int FrameLine = 2 * 9;
constexpr int ButtonBorder = 2 * 3;
constexpr int TextBoxBorder = 2 * 2;

class Drawing {
  public:
    explicit Drawing(bool heading) : dc_(CreateCompatibleDC(nullptr)) {
        const int dots = GetDeviceCaps(dc_, LOGPIXELSY);
        font_.Reset(CreateFontW(-MulDiv(heading ? 9 : 8, dots, 72), 0, 0, 0,
                                heading ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                DEFAULT_PITCH | FF_DONTCARE, L"Tahoma"));
        before_ = SelectObject(dc_, font_.Get());
    }
    ~Drawing() {
        SelectObject(dc_, before_);
        DeleteDC(dc_);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    // `width` is where words wrap to the next line; 0 for no wrapping.
    SIZE Measure(const std::string& text, UINT format, int width = 0) const {
        RECT area = {0, 0, width, 0};
        DrawTextW(dc_, ToWide(text).c_str(), -1, &area, DT_CALCRECT | format);
        return {area.right, area.bottom};
    }

  private:
    HDC dc_;
    FontHandle font_;
    HGDIOBJ before_ = nullptr;
};

std::string Compare(SIZE wanted, LONG width, LONG height) {
    if (wanted.cx <= width && wanted.cy <= height) return "";
    return "needs " + std::to_string(wanted.cx) + 'x' + std::to_string(wanted.cy) + ", has " +
           std::to_string(width) + 'x' + std::to_string(height);
}

std::string WhyLabelCut(const Look& label, const Drawing& drawing, LONG width, LONG height) {
    const LONG type = label.style & SS_TYPEMASK;
    if (type > SS_RIGHT && type != SS_LEFTNOWORDWRAP && type != SS_SIMPLE) return "";
    const UINT marks = (label.style & SS_NOPREFIX) ? DT_NOPREFIX : 0;
    if (type == SS_LEFTNOWORDWRAP || type == SS_SIMPLE) {
        return Compare(drawing.Measure(label.text, marks), width, height);
    }
    // Words wrap, so too long a line shows as too little height, and a single word as width.
    return Compare(drawing.Measure(label.text, DT_WORDBREAK | marks, width), width, height);
}

std::string WhyTabCut(const Look& tabs, const Drawing& drawing) {
    const Tabs strip(tabs.window);
    std::string why;
    int tab = 0;
    for (const std::string& caption : strip.Captions()) {
        const RECT area = strip.Area(tab++);
        const std::string one = Compare(drawing.Measure(caption, DT_SINGLELINE),
                                        area.right - area.left, area.bottom - area.top);
        const bool hidden = area.right > tabs.area.right - tabs.area.left;
        if (!one.empty() || hidden) why += '"' + caption + "\" " + (hidden ? "is hidden" : one);
    }
    return why;
}

}  // namespace

std::string WhyCut(const Look& control) {
    const bool heading = std::any_of(std::begin(Headings), std::end(Headings),
                                     [&](const char* name) { return control.name == name; });
    const Drawing drawing(heading);
    RECT client = {};
    GetClientRect(control.window, &client);
    if (control.Is("Static")) {
        return WhyLabelCut(control, drawing, client.right, client.bottom);
    }
    if (control.Is("SysTabControl32")) return WhyTabCut(control, drawing);
    const SIZE text = drawing.Measure(control.text, DT_SINGLELINE);
    if (control.IsFrame()) return Compare(text, client.right - FrameLine, client.bottom);
    if (control.Is("Button")) return Compare(text, client.right - CheckMark, client.bottom);
    if (control.Is("chameleonButton")) {
        return Compare(text, client.right - ButtonBorder, client.bottom - ButtonBorder);
    }
    // Of a text box only the height counts: its text can be scrolled.
    if (control.Is("Edit")) {
        return Compare({0, drawing.Measure("Xg", DT_SINGLELINE).cy}, client.right,
                       control.area.bottom - control.area.top - TextBoxBorder);
    }
    return "";
}

}  // namespace endtoend
