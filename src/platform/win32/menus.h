#pragma once

#include "platform/menus.h"
#include "platform/win32/hiddenwindow.h"

namespace platform::win32 {

class Menus final : public platform::Menus {
  public:
    const toolkit::MenuItem* Choose(const toolkit::PopupMenu& menu) override;

  private:
    // Stands behind the menu and has no use for its messages: the menu tells the choice itself.
    HiddenWindow window_{[](UINT, WPARAM, LPARAM) {}};
    bool open_ = false;
};

}  // namespace platform::win32
