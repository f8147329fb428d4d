#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "platform/win32/windows/messagehook.h"
#include "toolkit/controls.h"

namespace platform::win32 {

// A window in which one types: its control is asked for each character before it gets there.
class TypingWindow : public ControlWindow {
  public:
    void Detach() override;

  protected:
    using ControlWindow::ControlWindow;

    // `field` is where the characters arrive, in this window or inside it.
    void WatchTyping(HWND field, const toolkit::KeyHandler& onKeyPress);

    // Whether the character is no text that somebody types.
    virtual bool IsCommand(WPARAM character) const;

  private:
    MessageHook field_;
};

}  // namespace platform::win32
