// When a button is drawn, and when it is not.
#include <doctest/doctest.h>

#include "controls/watchedbutton.h"

using controls::ButtonState;
using controls_test::Client;
using controls_test::RecordingCanvas;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Words = std::vector<std::string>;

TEST_CASE("a button that is still being set up draws nothing and asks for no drawing") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmTest", "", {});
    controls_test::TestView view;
    auto& button = form.Add<controls::chameleonButton>("cmdTest", machine.clock);
    button.SetView(&view);
    button.SetSoftBevel(true);
    button.MouseDown(MouseButton::Left);
    CHECK(view.repaints == 0);
    CHECK(button.State() == ButtonState::Normal);
    RecordingCanvas canvas;
    button.Paint(canvas, Client);
    CHECK(canvas.calls.empty());
    button.SetView(nullptr);
}

TEST_CASE("a window that is there is painted by the system; the button asks for nothing") {
    WatchedButton test;
    CHECK(test.view.repaints == 0);
    CHECK_FALSE(test.Painted().empty());
}

TEST_CASE("between DisableRefresh and Refresh nothing is drawn, and then once") {
    WatchedButton test;
    test.button.DisableRefresh();
    test.button.SetButtonType(8);
    test.button.SetBackColor(0);
    test.MouseEnters();
    CHECK(test.view.repaints == 0);
    CHECK(test.view.regions.empty());
    CHECK(test.Painted().empty());
    CHECK_FALSE(test.button.IsReady());
    test.button.Refresh();
    CHECK(test.view.repaints == 1);
    CHECK(test.view.regions.size() == 1);
    CHECK(test.button.IsReady());
    CHECK_FALSE(test.Painted().empty());
}

TEST_CASE("other colours of the system's do not end what DisableRefresh began") {
    WatchedButton test;
    test.button.DisableRefresh();
    test.button.SettingsChanged();
    CHECK_FALSE(test.button.IsReady());
    CHECK(test.view.repaints == 0);
    test.button.Refresh();
    CHECK(test.view.repaints == 1);
}

TEST_CASE("other colours of the system's have the button look them up and draw itself anew") {
    WatchedButton test;
    RecordingCanvas canvas;
    test.button.Paint(canvas, Client);
    const int lookUps = canvas.lookUps;
    test.button.SettingsChanged();
    CHECK(test.view.repaints == 1);
    test.button.Paint(canvas, Client);
    CHECK(canvas.lookUps > lookUps);
}

TEST_CASE("Refresh redoes background, colours and the caption's place") {
    WatchedButton test;
    test.button.SetButtonType(11);
    RecordingCanvas canvas;
    test.button.Paint(canvas, Client);
    test.view.backgrounds.clear();
    const int lookUps = canvas.lookUps;
    const int measures = canvas.measures;
    test.button.Refresh();
    test.button.Paint(canvas, Client);
    CHECK(test.view.backgrounds == Words{"kept"});
    CHECK(canvas.lookUps > lookUps);
    CHECK(canvas.measures > measures);
}

TEST_CASE("a mouse that left while nothing was drawn leaves no hovered picture") {
    WatchedButton test;
    test.MouseEnters();
    test.button.DisableRefresh();
    test.view.pointerIsOver = false;
    test.machine.clock.Advance(3);
    test.button.Refresh();
    CHECK(test.button.State() == ButtonState::Normal);
}

TEST_CASE("the transparent look keeps its parent's background from the moment it is set") {
    WatchedButton test;
    CHECK(test.view.backgrounds.empty());
    test.button.SetButtonType(11);
    CHECK(test.view.backgrounds == Words{"kept"});
    CHECK(test.Painted().front() == "Background 0,0 75x23");
    test.button.Resize({0, 0, 90, 23});
    CHECK(test.view.backgrounds == Words{"kept", "kept"});
    test.button.SetButtonType(2);
    CHECK(test.view.backgrounds == Words{"kept", "kept", "let go"});
}

TEST_CASE("a transparent button keeps the background when its window comes") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmTest", "", {});
    controls_test::TestView view;
    auto& button = form.Add<controls::chameleonButton>("cmdTest", controls::Persisted{"BTYPE=11"},
                                                       machine.clock);
    button.SetView(&view);
    CHECK(view.backgrounds.empty());
    button.Show(Client);
    CHECK(view.backgrounds == Words{"kept"});
    button.SetView(nullptr);
}

TEST_CASE("a new size draws the button anew") {
    WatchedButton test;
    test.button.Resize({0, 0, 90, 30});
    CHECK(test.view.repaints == 1);
}

TEST_CASE("a click is drawn at once, before it is raised") {
    WatchedButton test;
    int paintsAtClick = 0;
    test.button.onClick = [&] { paintsAtClick = test.view.immediatePaints; };
    test.button.Press();
    CHECK(paintsAtClick == 1);
}
