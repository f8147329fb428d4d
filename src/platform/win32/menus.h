#pragma once

#include "platform/menus.h"
#include "platform/win32/hiddenwindow.h"

namespace platform::win32 {

class Menus final : public platform::Menus {
  public:
    const toolkit::MenuItem* Choose(const toolkit::PopupMenu& menu) override;

  private:
    void GiveKeyboardBack();

    // Stands behind a menu that opens while none of the program's windows is in front.
    HiddenWindow window_{[this](UINT message, WPARAM, LPARAM) {
        if (message == WM_NULL && !open_) GiveKeyboardBack();
    }};
    HWND before_ = nullptr;
    bool open_ = false;
};

}  // namespace platform::win32
