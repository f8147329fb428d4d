#pragma once

#include <windows.h>

#include "toolkit/canvas.h"

namespace platform::win32 {

// Draws on a device context, into which the control's font is selected already.
class GdiCanvas final : public toolkit::Canvas {
  public:
    explicit GdiCanvas(HDC dc) : dc_(dc) {}

    toolkit::Colour Translate(toolkit::Colour colour) const override;
    void FillRect(toolkit::Rect area, toolkit::Colour colour) override;
    void FrameRect(toolkit::Rect area, toolkit::Colour colour) override;
    void Line(toolkit::Point from, toolkit::Point to, toolkit::Colour colour) override;
    void Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour,
              toolkit::TextAlign align) override;
    toolkit::Size TextSize(std::string_view text) const override;
    void FocusRect(toolkit::Rect area) override;

  private:
    HDC dc_;
};

}  // namespace platform::win32
