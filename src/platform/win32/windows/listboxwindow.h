#pragma once

#include <string>

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
    void MakeRoomFor(const std::string& item, const std::wstring& text);

    toolkit::ListBox& control_;
    // In pixels: the widest letter, and the widest of the lines.
    int letter_ = 0;
    int widest_ = 0;
};

}  // namespace platform::win32
