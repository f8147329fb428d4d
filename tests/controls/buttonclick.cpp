#include <doctest/doctest.h>

#include "controls/watchedbutton.h"

using controls::ButtonState;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Events = std::vector<std::string>;

namespace {

// A button with the mouse over it, which no longer counts the entering.
struct HoveredButton : WatchedButton {
    HoveredButton() {
        MouseEnters();
        events.clear();
    }
};

}  // namespace

TEST_CASE("a press and a release of the left button over the button are one click") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Pressed);
    CHECK(test.events.empty());
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Hovered);
    CHECK(test.events == Events{"Click"});
}

TEST_CASE("the button is drawn released before its click is raised") {
    HoveredButton test;
    ButtonState seen = ButtonState::Pressed;
    test.button.onClick = [&] { seen = test.button.State(); };
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    CHECK(seen == ButtonState::Hovered);
}

TEST_CASE("the right button never shows the pressed picture and causes no click") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Right);
    CHECK(test.button.State() == ButtonState::Hovered);
    test.button.MouseUp(MouseButton::Right);
    CHECK(test.button.State() == ButtonState::Hovered);
    CHECK(test.events.empty());
}

TEST_CASE("a right press during a left one takes the click away") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseDown(MouseButton::Right);
    test.button.MouseUp(MouseButton::Right);
    CHECK(test.button.State() == ButtonState::Pressed);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events.empty());
}

TEST_CASE("the mouse leaving with the button held shows the normal picture; no click follows") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    test.MouseLeaves(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Normal);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events.empty());
}

TEST_CASE("the mouse coming back with the button held presses again and then clicks") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    test.MouseLeaves(MouseButton::Left);
    test.MouseEnters(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Pressed);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events == Events{"Click"});
}

TEST_CASE("a press made elsewhere and released over the button is no click") {
    WatchedButton test;
    test.MouseEnters(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events.empty());
}

TEST_CASE("a release outside leaves the hovered picture, and the next move outside takes it away") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    test.MouseLeaves(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.button.State() == ButtonState::Hovered);
    test.button.MouseMove(MouseButton::None);
    CHECK(test.button.State() == ButtonState::Normal);
}

TEST_CASE("a press with the left button captures the mouse, one with the right does not") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Right);
    CHECK(test.view.captures == 0);
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.view.captures == 1);
}

TEST_CASE("a double click is a click and a DblClick, and captures the mouse again") {
    HoveredButton test;
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.view.captures == 1);
    test.button.DoubleClick(MouseButton::Left);
    CHECK(test.view.captures == 2);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events == Events{"Click", "DblClick"});
}

TEST_CASE("a double click with the right button does nothing") {
    HoveredButton test;
    test.button.DoubleClick(MouseButton::Right);
    CHECK(test.events.empty());
    CHECK(test.view.captures == 0);
}

TEST_CASE("pressing by access key or script clicks wherever the mouse is") {
    WatchedButton test;
    test.button.Press();
    CHECK(test.events == Events{"Click"});
    CHECK(test.button.State() == ButtonState::Normal);
}

TEST_CASE("pressing works without a window and without a listener") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmTest", "", {});
    auto& button = form.Add<controls::chameleonButton>("cmdTest", machine.clock);
    button.SetCheckBoxBehaviour(true);
    button.Press();
    CHECK(button.Value());
}

TEST_CASE("a disabled button cannot be pressed") {
    HoveredButton test;
    test.button.SetCheckBoxBehaviour(true);
    test.button.SetEnabled(false);
    test.button.Press();
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    test.button.KeyUp(32);
    CHECK(test.events.empty());
    CHECK_FALSE(test.button.Value());
}

TEST_CASE("a click flips Value before it is raised, but only with CheckBoxBehaviour") {
    HoveredButton test;
    bool seen = false;
    test.button.onClick = [&] { seen = test.button.Value(); };
    test.button.Press();
    CHECK_FALSE(test.button.Value());

    test.button.SetCheckBoxBehaviour(true);
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.button.Value());
    CHECK(seen);
    test.button.Press();
    CHECK_FALSE(test.button.Value());
    CHECK_FALSE(seen);
}

TEST_CASE("setting Value from the program raises no click") {
    WatchedButton test;
    test.button.SetCheckBoxBehaviour(true);
    test.button.SetValue(true);
    CHECK(test.button.Value());
    CHECK(test.events.empty());
}
