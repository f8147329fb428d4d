#include "platform/win32/windows/screen.h"

#include <algorithm>
#include <cmath>

#include "platform/win32/windows/accessmarks.h"

namespace platform::win32 {
namespace {

constexpr float TwipsPerInch = 1440;
constexpr int DesignDotsPerInch = 96;

}  // namespace

Screen::Screen()
    : dc_(CreateCompatibleDC(nullptr)),
      dotsPerInch_(GetDeviceCaps(dc_.Get(), LOGPIXELSY)),
      plain_(MakeFont(8, FW_NORMAL)),
      heading_(MakeFont(9, FW_BOLD)) {}

HFONT Screen::MakeFont(int points, int weight) const {
    return CreateFontW(-MulDiv(points, dotsPerInch_, PointsPerInch), 0, 0, 0, weight, FALSE, FALSE,
                       FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                       DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"Tahoma");
}

toolkit::Size Screen::SizeOf(std::string_view text, bool bold) const {
    const HGDIOBJ before = SelectObject(dc_.Get(), bold ? Heading() : Plain());
    const toolkit::Size size = ExtentOf(dc_.Get(), text);
    SelectObject(dc_.Get(), before);
    return size;
}

int Screen::WidthOf(const std::wstring& text) const {
    const HGDIOBJ before = SelectObject(dc_.Get(), Plain());
    SIZE size{};
    GetTextExtentPoint32W(dc_.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(dc_.Get(), before);
    return size.cx;
}

int Screen::Scale(int pixels) const {
    return MulDiv(pixels, dotsPerInch_, DesignDotsPerInch);
}

// A stored place may be any number; windows lie within 16 bits.
int Screen::ToPixels(float twips) const {
    constexpr float Furthest = 32767;
    const float pixels = twips * static_cast<float>(dotsPerInch_) / TwipsPerInch;
    return static_cast<int>(std::lround(std::clamp(pixels, -Furthest, Furthest)));
}

float Screen::ToTwips(int pixels) const {
    return static_cast<float>(pixels) * TwipsPerInch / static_cast<float>(dotsPerInch_);
}

}  // namespace platform::win32
