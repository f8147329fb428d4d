#pragma once

#include <windows.h>

#include "platform/win32/handle.h"
#include "toolkit/canvas.h"

namespace platform::win32 {

// Draws on a device context, into which the control's font is selected already.
class GdiCanvas final : public toolkit::Canvas {
  public:
    // `background` holds what the parent shows behind the control; nullptr where nobody keeps it.
    GdiCanvas(HDC dc, HDC background) : dc_(dc), background_(background) {}
    ~GdiCanvas() override;
    GdiCanvas(const GdiCanvas&) = delete;
    GdiCanvas& operator=(const GdiCanvas&) = delete;

    toolkit::Colour Translate(toolkit::Colour colour) const override;
    void FillRect(toolkit::Rect area, toolkit::Colour colour) override;
    void FrameRect(toolkit::Rect area, toolkit::Colour colour) override;
    void Line(toolkit::Point from, toolkit::Point to, toolkit::Colour colour) override;
    void Ellipse(toolkit::Rect area, toolkit::Colour colour) override;
    void Pixel(toolkit::Point at, toolkit::Colour colour) override;
    void Background(toolkit::Rect area) override;
    void UseFont(const toolkit::Font& font) override;
    void Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour) override;
    toolkit::Size TextSize(std::string_view text, int width) const override;
    void FocusRect(toolkit::Rect area) override;
    void Draw(const toolkit::Picture& picture, toolkit::Point at) override;
    toolkit::Pixels PixelsOf(const toolkit::Picture& bitmap) const override;
    toolkit::Pixels PixelsAt(toolkit::Rect area) const override;
    void PutPixels(toolkit::Rect area, const toolkit::Pixels& pixels) override;

  private:
    HDC dc_;
    HDC background_;
    HGDIOBJ fontBefore_ = nullptr;
    FontHandle font_;
};

}  // namespace platform::win32
