#include "controls/ctooltip.h"

#include <cmath>
#include <limits>
#include <utility>

#include "runtime/failure.h"

namespace controls {
namespace {

using platform::TipTool;

constexpr std::uint32_t Topmost = 8;
// TTS_ALWAYSTIP and TTS_NOPREFIX.
constexpr std::uint32_t WindowStyle = 3;
constexpr std::uint32_t NoPrefixBit = 0x02;
constexpr std::uint32_t BalloonBit = 0x40;

constexpr toolkit::Colour PaleYellow = 0xEEFFFF;

enum Message : std::uint32_t {
    SetFontMessage = 48,
    SetDelayTimeMessage = 1027,
    AddTool = 1028,
    DelTool = 1029,
    NewToolRect = 1030,
    GetToolInfo = 1032,
    SetTipBkColor = 1043,
    SetTipTextColor = 1044,
    SetMaxTipWidth = 1048,
};

enum Delay : std::uintptr_t { AutoPop = 2, Initial = 3 };

enum Flag : std::uint32_t { IdIsWindow = 1, CenterTip = 2, Subclass = 16 };

std::int32_t Rounded(double number) {
    // The rounding mode of the process is never changed, so halves go to the even neighbour.
    const double whole = std::nearbyint(number);
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(whole >= Limits::min() && whole <= Limits::max())) {
        throw runtime::Failure(runtime::Overflow);
    }
    return static_cast<std::int32_t>(whole);
}

// Rounded as MulDiv does, which is away from zero. A point is a 72nd of an inch.
std::int32_t PixelsOf(std::int32_t points, std::int32_t dotsPerInch) {
    const std::int64_t product = std::int64_t{points} * dotsPerInch;
    return static_cast<std::int32_t>((product + (product < 0 ? -36 : 36)) / 72);
}

// A negative number reaches the system as it would in 32 bits.
std::uintptr_t Bits(std::int32_t number) {
    return static_cast<std::uint32_t>(number);
}

}  // namespace

cToolTip::cToolTip(platform::ToolTips& tips) : tips_(tips) {
    tips_.InitControls();
    window_ = tips_.Create(Topmost, WindowStyle);
    SetStyle(Standard);
    SetTipWidth(300);
    SetBkColor(PaleYellow);
    SetTxtColor(0);
    SetDelayTime(500);
    SetVisibleTime(2000);
}

cToolTip::~cToolTip() {
    tips_.Destroy(window_);
    if (font_) tips_.DeleteFont(font_);
}

void cToolTip::SetTxtColor(toolkit::Colour colour) {
    txtColor_ = colour;
    tips_.Send(window_, SetTipTextColor, colour, 0);
}

void cToolTip::SetBkColor(toolkit::Colour colour) {
    bkColor_ = colour;
    tips_.Send(window_, SetTipBkColor, colour, 0);
}

void cToolTip::SetVisibleTime(double milliseconds) {
    visibleTime_ = milliseconds;
    tips_.Send(window_, SetDelayTimeMessage, AutoPop, Bits(Rounded(milliseconds)));
}

void cToolTip::SetDelayTime(std::int32_t milliseconds) {
    delayTime_ = milliseconds;
    tips_.Send(window_, SetDelayTimeMessage, Initial, Bits(milliseconds));
}

void cToolTip::SetTipWidth(std::int32_t pixels) {
    tipWidth_ = pixels;
    tips_.Send(window_, SetMaxTipWidth, 0, Bits(pixels));
}

// Standard looks at one bit and turns over another, on purpose: the bit looked at is always there,
// since the window is made with it, and how the tips look depends on the number of assignments.
void cToolTip::SetStyle(std::int32_t style) {
    style_ = style;
    std::uint32_t bits = tips_.WindowStyle(window_);
    if (style == Balloon) bits |= BalloonBit;
    if (style == Standard && (bits & NoPrefixBit)) bits ^= BalloonBit;
    tips_.SetWindowStyle(window_, bits);
}

void cToolTip::SetFont(const platform::TipFont& font) {
    const std::int32_t height = -PixelsOf(Rounded(font.size), tips_.VerticalResolution());
    const Handle former = std::exchange(font_, tips_.MakeFont(height, font));
    tips_.Send(window_, SetFontMessage, font_, 1);
    if (former) tips_.DeleteFont(former);
}

void cToolTip::SetToolTipObj(Handle objHwnd, const char* sTipText, bool bCenter) {
    TipTool tool{.uFlags = IdIsWindow | Subclass | (bCenter ? CenterTip : 0U),
                 .hwnd = objHwnd,
                 .uId = objHwnd};
    tips_.SendTool(window_, AddTool, tool, sTipText);
}

void cToolTip::SetToolTipItem(Handle objHwnd, std::int32_t nItem, std::int32_t lft, std::int32_t tp,
                              std::int32_t rght, std::int32_t btm, const char* sTipText,
                              bool bCenter) {
    TipTool tool{.uFlags = Subclass | (bCenter ? CenterTip : 0U),
                 .hwnd = objHwnd,
                 .uId = Bits(nItem),
                 .left = lft,
                 .top = tp,
                 .right = rght,
                 .bottom = btm};
    tips_.SendTool(window_, AddTool, tool, sTipText);
}

void cToolTip::DelToolTip(Handle objHwnd, std::int32_t nItem) {
    TipTool tool{.hwnd = objHwnd, .uId = nItem >= 0 ? Bits(nItem) : objHwnd};
    tips_.SendTool(window_, DelTool, tool);
}

void cToolTip::AjustItemRect(Handle objHwnd, std::int32_t nItem, std::int32_t lft, std::int32_t tp,
                             std::int32_t rght, std::int32_t btm) {
    TipTool tool{.hwnd = objHwnd, .uId = Bits(nItem)};
    tips_.SendTool(window_, GetToolInfo, tool);
    tool.left = lft;
    tool.top = tp;
    tool.right = rght;
    tool.bottom = btm;
    tips_.SendTool(window_, NewToolRect, tool);
}

}  // namespace controls
