#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "toolkit/listbox.h"

namespace platform::win32 {

// The standard window class LISTBOX.
class ListBoxWindow final : public ControlWindow {
  public:
    ListBoxWindow(toolkit::ListBox& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowItems() override;

  private:
    toolkit::ListBox& control_;
};

}  // namespace platform::win32
