#include <doctest/doctest.h>

#include "controls/watchedbutton.h"
#include "toolkit/keys.h"

using controls::ButtonState;
using controls_test::WatchedButton;
using Events = std::vector<std::string>;

TEST_CASE("the space key presses when it goes down and clicks when it comes up") {
    WatchedButton test;
    test.button.KeyDown(toolkit::key::Space);
    CHECK(test.button.State() == ButtonState::Pressed);
    CHECK(test.events.empty());
    test.button.KeyUp(toolkit::key::Space);
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events == Events{"Click"});
}

TEST_CASE("the space key under the mouse leaves the hovered picture") {
    WatchedButton test;
    test.MouseEnters();
    test.button.KeyDown(toolkit::key::Space);
    test.button.KeyUp(toolkit::key::Space);
    CHECK(test.button.State() == ButtonState::Hovered);
}

TEST_CASE("a space key that repeats is drawn once and clicks once") {
    WatchedButton test;
    test.button.KeyDown(toolkit::key::Space);
    const int repaints = test.view.repaints;
    test.button.KeyDown(toolkit::key::Space);
    test.button.KeyDown(toolkit::key::Space);
    CHECK(test.view.repaints == repaints);
    test.button.KeyUp(toolkit::key::Space);
    CHECK(test.events == Events{"Click"});
}

TEST_CASE("the arrow keys walk through the form's controls and do nothing else") {
    WatchedButton test;
    test.button.SetCheckBoxBehaviour(true);
    for (const int pressed :
         {toolkit::key::Left, toolkit::key::Up, toolkit::key::Right, toolkit::key::Down}) {
        test.button.KeyDown(pressed);
        test.button.KeyUp(pressed);
    }
    CHECK(test.view.focusMoves == Events{"previous", "previous", "next", "next"});
    CHECK_FALSE(test.button.Value());
    CHECK(test.events.empty());
    CHECK(test.button.State() == ButtonState::Normal);
}

TEST_CASE("an arrow key on a button without a window is passed over") {
    WatchedButton test;
    test.button.SetView(nullptr);
    CHECK_NOTHROW(test.button.KeyDown(toolkit::key::Right));
}

TEST_CASE("the space key flips Value with CheckBoxBehaviour only") {
    WatchedButton test;
    test.button.KeyUp(toolkit::key::Space);
    CHECK_FALSE(test.button.Value());
    test.button.SetCheckBoxBehaviour(true);
    test.button.KeyUp(toolkit::key::Space);
    CHECK(test.button.Value());
}

TEST_CASE("any other key does nothing") {
    WatchedButton test;
    for (const int pressed : {9, 13, 27, 31, 33, 36, 41, 65}) {
        test.button.KeyDown(pressed);
        test.button.KeyUp(pressed);
    }
    CHECK(test.events.empty());
    CHECK(test.view.focusMoves.empty());
    CHECK(test.button.State() == ButtonState::Normal);
}

TEST_CASE("getting and losing the focus each draw the button anew") {
    WatchedButton test;
    test.button.FocusChanged(true);
    CHECK(test.view.repaints == 1);
    test.button.FocusChanged(false);
    CHECK(test.view.repaints == 2);
}

TEST_CASE("a button held down by the space key comes up when it loses the focus") {
    WatchedButton test;
    test.button.FocusChanged(true);
    test.button.KeyDown(toolkit::key::Space);
    test.button.FocusChanged(false);
    CHECK(test.button.State() == ButtonState::Normal);
    CHECK(test.events.empty());
}

TEST_CASE("losing the focus leaves the hovered picture") {
    WatchedButton test;
    test.button.FocusChanged(true);
    test.MouseEnters();
    test.button.FocusChanged(false);
    CHECK(test.button.State() == ButtonState::Hovered);
}
