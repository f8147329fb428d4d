#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "platform/win32/handle.h"
#include "toolkit/layout.h"

namespace platform::win32 {

inline constexpr int PointsPerInch = 72;

// The screen's resolution, and the dialogs' fonts on it.
class Screen final : public toolkit::TextMeasure {
  public:
    Screen();

    toolkit::Size SizeOf(std::string_view text, bool bold) const override;
    int Scale(int pixels) const override;
    // Of a text in which an ampersand is nothing but one, in the plain font.
    int WidthOf(const std::wstring& text) const;

    // Twips are 1440 to the inch.
    int ToPixels(float twips) const;
    float ToTwips(int pixels) const;

    // Tahoma 8, and the bold one of the pages' headings. They live as long as the screen.
    HFONT Plain() const { return plain_.Get(); }
    HFONT Heading() const { return heading_.Get(); }

  private:
    HFONT MakeFont(int points, int weight) const;

    // To measure in: a context of the screen itself is asked from the system each time.
    MemoryContext dc_;
    int dotsPerInch_;
    FontHandle plain_;
    FontHandle heading_;
};

}  // namespace platform::win32
