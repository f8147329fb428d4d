#pragma once

namespace toolkit {
struct MenuItem;
struct PopupMenu;
}  // namespace toolkit

namespace platform {

// Pop-up menus.
class Menus {
  public:
    virtual ~Menus() = default;

    // Shows the menu at its place, whatever program is in front, and blocks until it is gone;
    // events go on meanwhile. The keyboard then belongs to the window that had it. Returns the item
    // that the user chose, whose event is the caller's to raise, or nullptr: nothing chosen, no
    // menu possible, or one is open already.
    virtual const toolkit::MenuItem* Choose(const toolkit::PopupMenu& menu) = 0;
};

}  // namespace platform
