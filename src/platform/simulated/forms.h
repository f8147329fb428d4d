#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/form.h"

namespace platform::simulated {

class Journal;

// Windows without a screen. A modal form is answered from a script. Of what a form shows only its
// transparency is journalled, and what its list views are told, since that is asked of the system
// call by call; and the screen's pointer.
class Forms final : public toolkit::FormHost {
  public:
    explicit Forms(Journal& journal);
    ~Forms() override;

    void Open(toolkit::Form& form) override;
    void RunModal(toolkit::Form& form) override;
    void Close(toolkit::Form& form) override;
    toolkit::Bounds WorkArea() const override { return workArea; }
    std::vector<toolkit::Form*> OpenForms() const override { return open_; }
    void DoEvents() override {
        if (onEvents) onEvents();
    }
    // Counted from 1 in the order in which the controls come to be on the screen.
    std::uintptr_t HandleOf(const toolkit::Control& control) const override;
    // Umlauts stand with their vowels, as in German.
    std::string SortKey(std::string_view text) const override;

    // The next time a form of that name is shown modally, `user` runs and must hide or unload it;
    // a modal form without a script, or one left open by it, is a mistake in the test
    // (std::logic_error).
    void WhenModal(std::string formName, std::function<void(toolkit::Form&)> user);

    // The list view whose redrawing is locked; nullptr when none is.
    const toolkit::Control* LockedList() const { return lockedList_; }

    // What the user does while the program lets events through.
    std::function<void()> onEvents;

    // 1024 by 740 pixels at 15 twips a pixel.
    toolkit::Bounds workArea{0, 0, 15360, 11100};

  private:
    void ScreenPointerChanged() override;

    class View;
    class ListView;

    Journal& journal_;
    std::map<toolkit::Form*, std::unique_ptr<View>> views_;
    std::map<toolkit::Control*, std::unique_ptr<ListView>> lists_;
    std::map<const toolkit::Control*, std::uintptr_t> handles_;
    std::uintptr_t lastHandle_ = 0;
    const toolkit::Control* lockedList_ = nullptr;
    std::vector<toolkit::Form*> open_;
    std::deque<std::pair<std::string, std::function<void(toolkit::Form&)>>> scripts_;
};

}  // namespace platform::simulated
