#include "platform/win32/windows/canvas.h"

#include "platform/win32/text.h"
#include "platform/win32/windows/buffer.h"
#include "platform/win32/windows/nativepicture.h"
#include "platform/win32/windows/screen.h"

namespace platform::win32 {
namespace {

constexpr toolkit::Colour SystemColourBit = 0x80000000u;
// Not cut to its rectangle: letters may reach beyond their measured width, slanted ones do, and at
// some sizes a system draws a font's bitmaps but measures its outlines.
constexpr UINT TextFormat = DT_CENTER | DT_WORDBREAK | DT_NOCLIP;

RECT Native(toolkit::Rect area) {
    return {area.left, area.top, area.Right(), area.Bottom()};
}

// Of 32 bits, so that rows need no padding, and from the top, which a negative height says.
BITMAPINFO FormatOf(toolkit::Size size) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = size.width;
    format.bmiHeader.biHeight = -size.height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    return format;
}

// The fourth byte of a pixel is anybody's; it is not part of the colour.
toolkit::Pixels DataOf(HDC dc, HBITMAP bitmap, toolkit::Size size) {
    constexpr std::uint32_t ColourBits = 0xFFFFFF;
    BITMAPINFO format = FormatOf(size);
    toolkit::Pixels pixels(static_cast<std::size_t>(size.width * size.height));
    GetDIBits(dc, bitmap, 0, static_cast<UINT>(size.height), pixels.data(), &format,
              DIB_RGB_COLORS);
    for (std::uint32_t& pixel : pixels) pixel &= ColourBits;
    return pixels;
}

// A pen of one colour, for as long as something is drawn with it.
class Selected {
  public:
    Selected(HDC dc, toolkit::Colour colour)
        : dc_(dc), pen_(CreatePen(PS_SOLID, 1, colour)), before_(SelectObject(dc, pen_.Get())) {}
    ~Selected() { SelectObject(dc_, before_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc_;
    PenHandle pen_;
    HGDIOBJ before_;
};

}  // namespace

GdiCanvas::~GdiCanvas() {
    if (fontBefore_) SelectObject(dc_, fontBefore_);
}

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
    const Selected pen(dc_, Translate(colour));
    MoveToEx(dc_, from.x, from.y, nullptr);
    LineTo(dc_, to.x, to.y);
}

void GdiCanvas::Ellipse(toolkit::Rect area, toolkit::Colour colour) {
    const Selected pen(dc_, Translate(colour));
    const HGDIOBJ before = SelectObject(dc_, GetStockObject(NULL_BRUSH));
    ::Ellipse(dc_, area.left, area.top, area.Right(), area.Bottom());
    SelectObject(dc_, before);
}

void GdiCanvas::Pixel(toolkit::Point at, toolkit::Colour colour) {
    SetPixelV(dc_, at.x, at.y, Translate(colour));
}

void GdiCanvas::Background(toolkit::Rect area) {
    if (!background_) return;
    BitBlt(dc_, area.left, area.top, area.width, area.height, background_, area.left, area.top,
           SRCCOPY);
}

void GdiCanvas::UseFont(const toolkit::Font& font) {
    const int height = -MulDiv(font.points, GetDeviceCaps(dc_, LOGPIXELSY), PointsPerInch);
    FontHandle made(CreateFontW(height, 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL, font.italic,
                                font.underline, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                ToWide(font.name).c_str()));
    const HGDIOBJ before = SelectObject(dc_, made.Get());
    if (!fontBefore_) fontBefore_ = before;
    font_ = std::move(made);
}

void GdiCanvas::Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour) {
    const std::wstring wide = ToWide(text);
    RECT native = Native(area);
    SetBkMode(dc_, TRANSPARENT);
    SetTextColor(dc_, Translate(colour));
    DrawTextW(dc_, wide.c_str(), static_cast<int>(wide.size()), &native, TextFormat);
}

toolkit::Size GdiCanvas::TextSize(std::string_view text, int width) const {
    const std::wstring wide = ToWide(text);
    RECT native{0, 0, width, 0};
    DrawTextW(dc_, wide.c_str(), static_cast<int>(wide.size()), &native, TextFormat | DT_CALCRECT);
    return {native.right - native.left, native.bottom - native.top};
}

void GdiCanvas::FocusRect(toolkit::Rect area) {
    const RECT native = Native(area);
    // The dots are an exclusive or of the two colours; these two always show.
    SetTextColor(dc_, GetSysColor(COLOR_BTNTEXT));
    SetBkColor(dc_, GetSysColor(COLOR_BTNFACE));
    DrawFocusRect(dc_, &native);
}

void GdiCanvas::Draw(const toolkit::Picture& picture, toolkit::Point at) {
    const auto& native = static_cast<const NativePicture&>(picture);
    const auto [width, height] = picture.Extent();
    if (picture.What() == toolkit::Picture::Kind::Icon) {
        DrawIconEx(dc_, at.x, at.y, native.Icon(), width, height, 0, nullptr, DI_NORMAL);
        return;
    }
    const MemoryContext source(CreateCompatibleDC(dc_));
    const HGDIOBJ before = SelectObject(source.Get(), native.Bitmap());
    BitBlt(dc_, at.x, at.y, width, height, source.Get(), 0, 0, SRCCOPY);
    SelectObject(source.Get(), before);
}

toolkit::Pixels GdiCanvas::PixelsOf(const toolkit::Picture& bitmap) const {
    return DataOf(dc_, static_cast<const NativePicture&>(bitmap).Bitmap(), bitmap.Extent());
}

toolkit::Pixels GdiCanvas::PixelsAt(toolkit::Rect area) const {
    Buffer copy(dc_, area.width, area.height);
    BitBlt(copy.Get(), 0, 0, area.width, area.height, dc_, area.left, area.top, SRCCOPY);
    return DataOf(dc_, copy.Deselect(), {area.width, area.height});
}

void GdiCanvas::PutPixels(toolkit::Rect area, const toolkit::Pixels& pixels) {
    const BITMAPINFO format = FormatOf({area.width, area.height});
    SetDIBitsToDevice(dc_, area.left, area.top, static_cast<DWORD>(area.width),
                      static_cast<DWORD>(area.height), 0, 0, 0, static_cast<UINT>(area.height),
                      pixels.data(), &format, DIB_RGB_COLORS);
}

}  // namespace platform::win32
