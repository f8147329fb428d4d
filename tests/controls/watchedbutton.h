#pragma once

#include <string>
#include <vector>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "toolkit/form.h"

namespace controls_test {

// A view whose mouse stands where the test says.
class TestView final : public toolkit::ControlView {
  public:
    bool pointerIsOver = false;
    int repaints = 0;
    int captures = 0;
    // "next" and "previous".
    std::vector<std::string> focusMoves;

    void Refresh(toolkit::Aspect) override {}
    void Repaint() override { ++repaints; }
    bool PointerIsOver() const override { return pointerIsOver; }
    void TakeFocus() override {}
    void CaptureMouse() override { ++captures; }
    void MoveFocus(bool forward) override { focusMoves.push_back(forward ? "next" : "previous"); }
};

// One button with a view, and what it raised, in order.
struct WatchedButton {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmTest", "", {}};
    TestView view;
    controls::chameleonButton& button =
        form.Add<controls::chameleonButton>("cmdTest", "Test", machine.clock);
    std::vector<std::string> events;

    WatchedButton() {
        button.SetView(&view);
        button.onClick = [this] { events.push_back("Click"); };
        button.onDblClick = [this] { events.push_back("DblClick"); };
        button.onMouseOver = [this] { events.push_back("MouseOver"); };
        button.onMouseOut = [this] { events.push_back("MouseOut"); };
    }
    ~WatchedButton() { button.SetView(nullptr); }

    void MouseEnters(toolkit::MouseButton held = toolkit::MouseButton::None) {
        view.pointerIsOver = true;
        button.MouseMove(held);
    }
    // As the native window tells it while a button is held, and the tick of OverTimer tells anyway.
    void MouseLeaves(toolkit::MouseButton held) {
        view.pointerIsOver = false;
        button.MouseMove(held);
    }
};

}  // namespace controls_test
