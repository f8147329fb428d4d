#pragma once

#include <cstdint>
#include <string>

#include "platform/tooltips.h"
#include "toolkit/controls.h"

namespace controls {

// One tooltip window of the system: made with the object, gone with it. Each property is stored
// and passed on to the window in the moment in which it is set.
class cToolTip {
  public:
    // The styles.
    static constexpr std::int32_t Standard = 1;
    static constexpr std::int32_t Balloon = 2;

    using Handle = platform::ToolTips::Handle;

    // `tips` must outlive the object.
    explicit cToolTip(platform::ToolTips& tips);
    ~cToolTip();
    cToolTip(const cToolTip&) = delete;
    cToolTip& operator=(const cToolTip&) = delete;

    // The tooltip window; 0 when there could be none.
    Handle Window() const { return window_; }

    toolkit::Colour TxtColor() const { return txtColor_; }
    void SetTxtColor(toolkit::Colour colour);
    toolkit::Colour BkColor() const { return bkColor_; }
    void SetBkColor(toolkit::Colour colour);

    // How long a tip stays, in milliseconds. Passed on as a whole number of 32 bits, halves rounded
    // to the even neighbour; throws Failure Overflow for one that does not fit.
    double VisibleTime() const { return visibleTime_; }
    void SetVisibleTime(double milliseconds);
    // How long the mouse rests before a tip comes, in milliseconds.
    std::int32_t DelayTime() const { return delayTime_; }
    void SetDelayTime(std::int32_t milliseconds);

    // The most that a tip is wide, in pixels; a longer text takes several lines.
    std::int32_t TipWidth() const { return tipWidth_; }
    void SetTipWidth(std::int32_t pixels);

    // Standard or Balloon. Standard turns the window's balloon bit over each time that it is
    // assigned. A fresh object, which has assigned it once, shows balloons therefore, although its
    // Style is Standard; the second assignment brings plain tips.
    std::int32_t Style() const { return style_; }
    void SetStyle(std::int32_t style);

    // 0 until a font has been set.
    Handle Font() const { return font_; }
    // The size is rounded to whole points; throws Failure Overflow for one beyond 32 bits.
    void SetFont(const platform::TipFont& font);

    // Gives a window its tip. A window that has one already is not looked for; the system then
    // decides which of the two is shown.
    void SetToolTipObj(Handle objHwnd, const char* sTipText, bool bCenter = false);
    // The same for a part of the window, which `nItem` names; in its pixels.
    void SetToolTipItem(Handle objHwnd, std::int32_t nItem, std::int32_t lft, std::int32_t tp,
                        std::int32_t rght, std::int32_t btm, const char* sTipText,
                        bool bCenter = false);
    // Takes the tip of a part away, or that of the window when `nItem` is below 0.
    void DelToolTip(Handle objHwnd, std::int32_t nItem = -1);
    // Gives the part another place.
    void AjustItemRect(Handle objHwnd, std::int32_t nItem, std::int32_t lft, std::int32_t tp,
                       std::int32_t rght, std::int32_t btm);

  private:
    platform::ToolTips& tips_;
    Handle window_;
    toolkit::Colour txtColor_ = 0;
    toolkit::Colour bkColor_ = 0;
    double visibleTime_ = 0;
    std::int32_t delayTime_ = 0;
    std::int32_t tipWidth_ = 0;
    std::int32_t style_ = 0;
    Handle font_ = 0;
};

}  // namespace controls
