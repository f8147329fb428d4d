#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "controls/chameleonbutton.h"
#include "controls/propertystore.h"
#include "controls/recordingcanvas.h"
#include "platform/simulated/machine.h"
#include "toolkit/form.h"

namespace controls_test {

// A view whose mouse stands where the test says.
class TestView final : public toolkit::ControlView {
  public:
    bool pointerIsOver = false;
    bool fails = false;
    int repaints = 0;
    int captures = 0;
    int immediatePaints = 0;
    // "next" and "previous".
    std::vector<std::string> focusMoves;
    // The outlines that the window was given.
    std::vector<toolkit::Region> regions;
    // "kept" and "let go".
    std::vector<std::string> backgrounds;

    void Refresh(toolkit::Aspect) override {
        if (fails) throw std::runtime_error("no window");
    }
    void Repaint() override { ++repaints; }
    bool PointerIsOver() const override { return pointerIsOver; }
    void TakeFocus() override {}
    void CaptureMouse() override { ++captures; }
    void MoveFocus(bool forward) override { focusMoves.push_back(forward ? "next" : "previous"); }
    void PaintNow() override { ++immediatePaints; }
    void* Handle() const override { return const_cast<TestView*>(this); }
    void SetRegion(const toolkit::Region& parts) override { regions.push_back(parts); }
    void KeepBackground(bool kept) override { backgrounds.push_back(kept ? "kept" : "let go"); }
};

inline constexpr toolkit::Rect Client{0, 0, 75, 23};

// One button with a window of the usual size, and what it raised, in order.
struct WatchedButton {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmTest", "", {}};
    TestView view;
    controls::chameleonButton& button = form.Add<controls::chameleonButton>(
        "cmdTest", controls::Persisted{"TX=Test"}, machine.clock);
    std::vector<std::string> events;

    WatchedButton() {
        button.SetView(&view);
        button.Show(Client);
        button.onClick = [this] { events.push_back("Click"); };
        button.onDblClick = [this] { events.push_back("DblClick"); };
        button.onMouseOver = [this] { events.push_back("MouseOver"); };
        button.onMouseOut = [this] { events.push_back("MouseOut"); };
    }
    ~WatchedButton() { button.SetView(nullptr); }

    // What one painting of the whole button draws.
    std::vector<std::string> Painted() const {
        RecordingCanvas canvas;
        button.Paint(canvas, Client);
        return canvas.calls;
    }

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
