#pragma once

#include "platform/win32/windows/typingwindow.h"

namespace platform::win32 {

// The standard window class EDIT.
class TextBoxWindow final : public TypingWindow {
  public:
    TextBoxWindow(toolkit::TextBox& control, const Surroundings& surroundings)
        : TypingWindow(control, surroundings), control_(control) {}

    void Notified(UINT code) override;

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowValue() override;

  private:
    toolkit::TextBox& control_;
    // The native window is being given the control's text, which is no doing of the user's.
    bool showing_ = false;
};

}  // namespace platform::win32
