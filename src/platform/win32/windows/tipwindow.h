#pragma once

#include <string>

#include "platform/win32/handle.h"

namespace platform::win32 {

// The system's tip of one control: one line at the mouse that rests there.
class TipWindow {
  public:
    // Gives the control's window that tip; "" takes it away.
    void Show(HWND control, const std::string& text);
    // To be called before others who listen to the window leave it, since the tip listens too.
    void Leave() { window_.Close(); }

  private:
    WindowHandle window_;
};

}  // namespace platform::win32
