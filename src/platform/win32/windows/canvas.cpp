#include "platform/win32/windows/canvas.h"

#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "platform/win32/windows/accessmarks.h"

namespace platform::win32 {
namespace {

constexpr toolkit::Colour SystemColourBit = 0x80000000u;

RECT Native(toolkit::Rect area) {
    return {area.left, area.top, area.Right(), area.Bottom()};
}

}  // namespace

toolkit::Colour GdiCanvas::Translate(toolkit::Colour colour) const {
    if (!(colour & SystemColourBit)) return colour;
    return GetSysColor(static_cast<int>(colour & ~SystemColourBit));
}

void GdiCanvas::FillRect(toolkit::Rect area, toolkit::Colour colour) {
    const BrushHandle brush(CreateSolidBrush(Translate(colour)));
    const RECT native = Native(area);
    ::FillRect(dc_, &native, brush.Get());
}

void GdiCanvas::FrameRect(toolkit::Rect area, toolkit::Colour colour) {
    const BrushHandle brush(CreateSolidBrush(Translate(colour)));
    const RECT native = Native(area);
    ::FrameRect(dc_, &native, brush.Get());
}

void GdiCanvas::Line(toolkit::Point from, toolkit::Point to, toolkit::Colour colour) {
    const PenHandle pen(CreatePen(PS_SOLID, 1, Translate(colour)));
    const HGDIOBJ before = SelectObject(dc_, pen.Get());
    MoveToEx(dc_, from.x, from.y, nullptr);
    LineTo(dc_, to.x, to.y);
    SelectObject(dc_, before);
}

void GdiCanvas::Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour,
                     toolkit::TextAlign align) {
    const std::wstring wide = ToWide(text);
    RECT native = Native(area);
    SetBkMode(dc_, TRANSPARENT);
    SetTextColor(dc_, Translate(colour));
    DrawTextW(
        dc_, wide.c_str(), static_cast<int>(wide.size()), &native,
        DT_SINGLELINE | DT_VCENTER | (align == toolkit::TextAlign::Centre ? DT_CENTER : DT_LEFT));
}

toolkit::Size GdiCanvas::TextSize(std::string_view text) const {
    return ExtentOf(dc_, text);
}

void GdiCanvas::FocusRect(toolkit::Rect area) {
    const RECT native = Native(area);
    // The dots are an exclusive or of the two colours; these two always show.
    SetTextColor(dc_, GetSysColor(COLOR_BTNTEXT));
    SetBkColor(dc_, GetSysColor(COLOR_BTNFACE));
    DrawFocusRect(dc_, &native);
}

}  // namespace platform::win32
