#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace contract {

// Uses the next pop-up menu of this thread with the keyboard, from a timer: the thread itself waits
// in the menu.
class MenuUser {
  public:
    // Chooses the item with that caption, or presses Escape where there is none. `whileOpen` runs
    // once before.
    explicit MenuUser(std::string caption, std::function<void()> whileOpen = nullptr);
    ~MenuUser();
    MenuUser(const MenuUser&) = delete;
    MenuUser& operator=(const MenuUser&) = delete;

    int menus = 0;
    // What the menu held, a separator as "-", and where it stood.
    std::vector<std::string> captions;
    RECT place{};
    HMENU handle = nullptr;

  private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
    void Use(HWND window);

    std::string caption_;
    std::function<void()> whileOpen_;
    UINT_PTR timer_;
};

}  // namespace contract
