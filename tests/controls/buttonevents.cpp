// The events that a button passes on as a standard button does.
#include <doctest/doctest.h>

#include "controls/watchedbutton.h"
#include "toolkit/keys.h"

using controls::ButtonState;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Events = std::vector<std::string>;

namespace {

struct ListeningButton : WatchedButton {
    ListeningButton() {
        const auto mouse = [this](const char* what) {
            return [this, what](const toolkit::Mouse& facts) {
                events.push_back(what + (" " + Number(static_cast<int>(facts.button))) + " " +
                                 Number(facts.at.x) + "," + Number(facts.at.y) + " " +
                                 Number(facts.shift) + " in state " + State());
            };
        };
        const auto key = [this](const char* what) {
            return [this, what](const toolkit::Key& facts) {
                events.push_back(what + (" " + Number(facts.code)) + " " + Number(facts.shift) +
                                 " in state " + State());
            };
        };
        button.onMouseDown = mouse("MouseDown");
        button.onMouseMove = mouse("MouseMove");
        button.onMouseUp = mouse("MouseUp");
        button.onKeyDown = key("KeyDown");
        button.onKeyUp = key("KeyUp");
        button.onKeyPress = [this](char16_t character) {
            events.push_back("KeyPress " + Number(character));
        };
    }

    static std::string Number(int number) { return std::to_string(number); }
    std::string State() const { return Number(static_cast<int>(button.State())); }
};

}  // namespace

TEST_CASE("the mouse's events come first, then what the button does, then its own events") {
    ListeningButton test;
    test.view.pointerIsOver = true;
    test.button.MouseMove({MouseButton::None, {3, 4}});
    test.button.MouseDown({MouseButton::Left, {5, 6}, toolkit::ShiftKey});
    test.button.MouseUp({MouseButton::Left, {7, 8}, toolkit::ControlKey | toolkit::AltKey});
    CHECK(test.events == Events{"MouseMove 0 3,4 0 in state 0", "MouseOver",
                                "MouseDown 1 5,6 1 in state 1", "MouseUp 1 7,8 6 in state 2",
                                "Click"});
}

TEST_CASE("the right button is told as well, though it does nothing") {
    ListeningButton test;
    test.button.MouseDown({MouseButton::Right, {1, 2}});
    test.button.MouseUp({MouseButton::Right, {1, 2}});
    CHECK(test.events == Events{"MouseDown 2 1,2 0 in state 0", "MouseUp 2 1,2 0 in state 0"});
}

TEST_CASE("the middle button is drawn like the left one, and clicks nothing") {
    ListeningButton test;
    test.MouseEnters();
    test.events.clear();
    test.button.MouseDown(MouseButton::Middle);
    CHECK(test.button.State() == ButtonState::Pressed);
    test.button.MouseUp(MouseButton::Middle);
    CHECK(test.button.State() == ButtonState::Hovered);
    CHECK(test.events == Events{"MouseDown 4 0,0 0 in state 1", "MouseUp 4 0,0 0 in state 2"});
}

TEST_CASE("a click comes with the release of the left button, whichever other goes up before") {
    WatchedButton test;
    test.MouseEnters();
    test.events.clear();
    test.button.MouseDown(MouseButton::Middle);
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseUp(MouseButton::Middle);
    CHECK(test.events.empty());
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events == Events{"Click"});
}

TEST_CASE("a middle press during a left one takes the click away") {
    WatchedButton test;
    test.MouseEnters();
    test.events.clear();
    test.button.MouseDown(MouseButton::Left);
    test.button.MouseDown(MouseButton::Middle);
    test.button.MouseUp(MouseButton::Middle);
    test.button.MouseUp(MouseButton::Left);
    CHECK(test.events.empty());
}

TEST_CASE("the keys' events come first, then what the button does, then the click") {
    ListeningButton test;
    test.button.KeyDown({toolkit::key::Space, toolkit::ShiftKey});
    test.button.KeyPress(u' ');
    test.button.KeyUp(toolkit::key::Space);
    CHECK(test.events ==
          Events{"KeyDown 32 1 in state 0", "KeyPress 32", "KeyUp 32 0 in state 2", "Click"});
}

TEST_CASE("any key is told") {
    ListeningButton test;
    test.button.KeyDown(65);
    test.button.KeyPress(u'ä');
    test.button.KeyUp(65);
    CHECK(test.events ==
          Events{"KeyDown 65 0 in state 0", "KeyPress 228", "KeyUp 65 0 in state 0"});
}
