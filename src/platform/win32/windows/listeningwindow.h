#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "platform/win32/windows/messagehook.h"

namespace platform::win32 {

// A standard window that hears the mouse, which its class passes on to what lies behind it, if
// somebody listens when it is made.
class ListeningWindow : public ControlWindow {
  public:
    void Detach() override;

  protected:
    using ControlWindow::ControlWindow;

    virtual bool IsHeard() const = 0;
    // Passes the message on to the class or not, and gives its result.
    virtual LRESULT Hear(const HookedMessage& hooked) = 0;

    void Prepare() override;

  private:
    MessageHook hook_;
};

}  // namespace platform::win32
