#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/menus.h"

namespace platform::simulated {

class Faults;
class Journal;

// Pop-up menus used from a script.
class Menus final : public platform::Menus {
  public:
    Menus(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    const toolkit::MenuItem* Choose(const toolkit::PopupMenu& menu) override;

    // In the next menu the user chooses the item with that caption; several queue up. A disabled
    // item is tried in vain. A menu that nobody uses, or one without that item, is a mistake in the
    // test (std::logic_error).
    void Pick(std::string caption);
    // The next menu is left without a choice.
    void Dismiss() { Pick(""); }
    // Runs while the next menu is open, before its item is chosen.
    void WhileOpen(std::function<void()> action) { action_ = std::move(action); }

  private:
    const toolkit::MenuItem* Picked(const toolkit::PopupMenu& menu);

    Journal& journal_;
    Faults& faults_;
    std::deque<std::string> picks_;
    std::function<void()> action_;
    bool open_ = false;
};

}  // namespace platform::simulated
