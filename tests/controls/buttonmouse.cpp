#include <doctest/doctest.h>

#include "controls/watchedbutton.h"

using controls::ButtonState;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Events = std::vector<std::string>;

TEST_CASE("the mouse entering the button is told once, however often it moves there") {
    WatchedButton test;
    test.MouseEnters();
    CHECK(test.button.State() == ButtonState::Hovered);
    test.button.MouseMove(MouseButton::None);
    test.machine.clock.Advance(30);
    test.button.MouseMove(MouseButton::None);
    CHECK(test.events == Events{"MouseOver"});
}

TEST_CASE("the mouse leaving the button is told once, by the timer that then stops") {
    WatchedButton test;
    CHECK(test.machine.clock.RunningTimers() == 0);
    test.MouseEnters();
    CHECK(test.machine.clock.RunningTimers() == 1);
    test.view.pointerIsOver = false;
    test.machine.clock.Advance(2);
    CHECK(test.events == Events{"MouseOver"});
    test.machine.clock.Advance(1);
    CHECK(test.events == Events{"MouseOver", "MouseOut"});
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.machine.clock.RunningTimers() == 0);
    test.machine.clock.Advance(30);
    CHECK(test.events.size() == 2);
}

TEST_CASE("where the system has no timer left the mouse has not come, and fails nothing") {
    WatchedButton test;
    test.machine.faults.FailAll("SetTimer", 7);
    CHECK_NOTHROW(test.MouseEnters());
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events.empty());
    test.machine.faults.Clear();
    test.button.MouseMove(MouseButton::None);
    CHECK(test.button.State() == ButtonState::Hovered);
    CHECK(test.events == Events{"MouseOver"});
}

TEST_CASE("each further entering and leaving is told anew") {
    WatchedButton test;
    for (int visit = 0; visit < 2; ++visit) {
        test.MouseEnters();
        test.view.pointerIsOver = false;
        test.machine.clock.Advance(3);
    }
    CHECK(test.events == Events{"MouseOver", "MouseOut", "MouseOver", "MouseOut"});
}

TEST_CASE("the hovered picture is drawn before MouseOver is raised") {
    WatchedButton test;
    ButtonState seen = ButtonState::Normal;
    test.button.onMouseOver = [&] { seen = test.button.State(); };
    test.MouseEnters();
    CHECK(seen == ButtonState::Hovered);
}

TEST_CASE("a move outside shows the normal picture and tells nothing by itself") {
    WatchedButton test;
    test.MouseEnters();
    test.MouseLeaves(MouseButton::None);
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events == Events{"MouseOver"});
    test.machine.clock.Advance(3);
    CHECK(test.events == Events{"MouseOver", "MouseOut"});
}

TEST_CASE("the mouse coming in with the left button held shows the pressed picture") {
    WatchedButton test;
    test.MouseEnters(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Pressed);
    CHECK(test.events.empty());
}

TEST_CASE("after a drag into the button, entering and leaving are still told in pairs") {
    WatchedButton test;
    test.MouseEnters(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    test.button.MouseMove(MouseButton::None);
    CHECK(test.events == Events{"MouseOver"});
    test.view.pointerIsOver = false;
    test.machine.clock.Advance(3);
    CHECK(test.events == Events{"MouseOver", "MouseOut"});
}

TEST_CASE("the mouse coming in with the right button held changes nothing") {
    WatchedButton test;
    test.MouseEnters(MouseButton::Right);
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events.empty());
}

TEST_CASE("a button that dies under the mouse stops its timer") {
    platform::simulated::Machine machine;
    controls_test::TestView view;
    view.pointerIsOver = true;
    {
        toolkit::Form form(machine.forms, "frmTest", "", {});
        auto& button = form.Add<controls::chameleonButton>("cmdTest", machine.clock);
        button.SetView(&view);
        button.MouseMove(MouseButton::None);
        CHECK(machine.clock.RunningTimers() == 1);
    }
    CHECK(machine.clock.RunningTimers() == 0);
}

TEST_CASE("a button without a window has no mouse over it") {
    WatchedButton test;
    test.button.SetView(nullptr);
    test.button.MouseMove(MouseButton::None);
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events.empty());
    CHECK(test.machine.clock.RunningTimers() == 0);
}

TEST_CASE("a button whose window went away while the mouse was over it lets go at the next tick") {
    WatchedButton test;
    test.MouseEnters();
    test.button.SetView(nullptr);
    test.machine.clock.Advance(3);
    CHECK(test.events == Events{"MouseOver", "MouseOut"});
    CHECK(test.machine.clock.RunningTimers() == 0);
}
