#pragma once

#include "platform/win32/windows/comboboxwindow.h"
#include "platform/win32/windows/messagehook.h"
#include "toolkit/drivelistbox.h"

namespace platform::win32 {

// A COMBOBOX that also hears its list being scrolled.
class DriveListBoxWindow final : public ComboBoxWindow {
  public:
    DriveListBoxWindow(toolkit::DriveListBox& control, const Surroundings& surroundings)
        : ComboBoxWindow(control, surroundings), control_(control) {}

    void Detach() override;

  protected:
    void Prepare() override;

  private:
    toolkit::DriveListBox& control_;
    MessageHook list_;
};

}  // namespace platform::win32
