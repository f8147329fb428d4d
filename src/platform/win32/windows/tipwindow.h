#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "platform/win32/handle.h"

namespace platform::win32 {

// The system's tip of one control: one line at the mouse that rests there. It is made when the
// mouse comes, since a tip listens to all that its control is told, and a label that names the
// current file of a search is told thousands of times without anybody pointing at it.
class TipWindow {
  public:
    // Gives the control's window a tip. The window's parent is asked for the text whenever it is to
    // be seen.
    void Offer(HWND control);
    // The text has changed; whoever is reading the tip sees the new one.
    void ShowChange(HWND control);
    // Answers that question. The text lives until the next one.
    void Answer(NMTTDISPINFOW& question, const std::string& text);
    // To be called before others who listen to the window leave it, since the tip listens too.
    void Leave() { window_.Close(); }

  private:
    WindowHandle window_;
    std::wstring text_;
};

}  // namespace platform::win32
