#include <doctest/doctest.h>

#include <algorithm>

#include "controls/watchedbutton.h"

using controls_test::TestPicture;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Calls = std::vector<std::string>;

namespace {

const Calls Raised{
    "FillRect 0,0 75x23 face", "Text 25,5 24x13 \"Test\" text", "Line 0,0 74,0 highlight",
    "Line 0,0 0,22 highlight", "Line 74,0 74,22 darkShadow",    "Line 0,22 75,22 darkShadow",
    "Line 1,1 73,1 light",     "Line 1,1 1,21 light",           "Line 73,1 73,21 shadow",
    "Line 1,21 74,21 shadow",
};

const Calls Sunken{
    "FillRect 0,0 75x23 face",  "Text 26,6 24x13 \"Test\" text", "Line 0,0 74,0 darkShadow",
    "Line 0,0 0,22 darkShadow", "Line 74,0 74,22 highlight",     "Line 0,22 75,22 highlight",
    "Line 1,1 73,1 shadow",     "Line 1,1 1,21 shadow",          "Line 73,1 73,21 light",
    "Line 1,21 74,21 light",
};

}  // namespace

TEST_CASE("a button draws its face, its caption and then its raised edges") {
    WatchedButton test;
    CHECK(test.Painted() == Raised);
}

TEST_CASE("a pressed button is sunken and its caption a pixel off") {
    WatchedButton test;
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.Painted() == Sunken);
}

TEST_CASE("a hovered button of this look is drawn as a normal one") {
    WatchedButton test;
    test.MouseEnters();
    CHECK(test.Painted() == Raised);
}

TEST_CASE("a kept Value looks pressed with CheckBoxBehaviour only") {
    WatchedButton test;
    test.button.SetValue(true);
    CHECK(test.Painted() == Raised);
    test.button.SetCheckBoxBehaviour(true);
    CHECK(test.Painted() == Sunken);
}

TEST_CASE("the focus rectangle comes last and only with the focus") {
    WatchedButton test;
    test.button.FocusChanged(true);
    Calls expected = Raised;
    expected.push_back("FocusRect 4,4 67x15");
    CHECK(test.Painted() == expected);
    test.button.FocusChanged(false);
    CHECK(test.Painted() == Raised);
}

TEST_CASE("without ShowFocusRect the focus is not drawn") {
    WatchedButton test;
    test.button.FocusChanged(true);
    test.button.SetShowFocusRect(false);
    CHECK(test.Painted() == Raised);
}

TEST_CASE("the caption of a disabled button is engraved") {
    WatchedButton test;
    test.button.SetEnabled(false);
    const Calls calls = test.Painted();
    REQUIRE(calls.size() == Raised.size() + 1);
    CHECK(calls[1] == "Text 26,6 24x13 \"Test\" highlight");
    CHECK(calls[2] == "Text 25,5 24x13 \"Test\" shadow");
    CHECK(std::equal(calls.begin() + 3, calls.end(), Raised.begin() + 2));
}

TEST_CASE("the button that Return presses has a black frame around its edges") {
    WatchedButton test;
    test.button.MarkDefault(true);
    const Calls calls = test.Painted();
    REQUIRE(calls.size() == Raised.size() + 1);
    CHECK(calls[0] == "FillRect 0,0 75x23 face");
    CHECK(calls[1] == "FrameRect 0,0 75x23 black");
    CHECK(calls[2] == Raised[1]);
    CHECK(calls[3] == "Line 1,1 73,1 highlight");
    test.button.MarkDefault(false);
    CHECK(test.Painted() == Raised);
}

TEST_CASE("a button is drawn anew only when its state differs from the drawn one") {
    WatchedButton test;
    test.button.MouseMove(MouseButton::None);
    CHECK(test.view.repaints == 0);
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.view.repaints == 1);
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.view.repaints == 1);
}

TEST_CASE("a property that concerns the look draws the button anew whatever its state") {
    WatchedButton test;
    test.button.SetShowFocusRect(false);
    test.button.SetCheckBoxBehaviour(true);
    test.button.SetValue(true);
    test.button.MarkDefault(true);
    CHECK(test.view.repaints == 4);
}

TEST_CASE("a button is 75 by 23 pixels, wider for a long caption and larger with the font") {
    WatchedButton test;
    const auto natural = [&](int width, int height) {
        const toolkit::Size size = test.button.NaturalSize({width, height});
        return std::pair{size.width, size.height};
    };
    CHECK(natural(0, 0) == std::pair{75, 23});
    CHECK(natural(20, 13) == std::pair{75, 23});
    CHECK(natural(55, 13) == std::pair{75, 23});
    CHECK(natural(56, 13) == std::pair{76, 23});
    CHECK(natural(200, 26) == std::pair{240, 46});
}

TEST_CASE("a picture beside the caption makes a button wider, by itself and the gap") {
    WatchedButton test;
    const auto width = [&] { return test.button.NaturalSize({100, 13}).width; };
    test.button.SetCaption("Hilfe");
    CHECK(width() == 120);
    test.button.SetPictureNormal(
        std::make_shared<TestPicture>(toolkit::Picture::Kind::Bitmap, toolkit::Size{16, 14}, "p"));
    CHECK(width() == 140);
    test.button.SetPicturePosition(1);
    CHECK(width() == 140);
    for (const std::int16_t position : {2, 3, 4}) {
        test.button.SetPicturePosition(position);
        CHECK(width() == 120);
    }
    test.button.SetPicturePosition(0);
    test.button.SetCaption("");
    CHECK(width() == 136);
}

TEST_CASE("scripts find a button by its window class, and the keyboard reaches it") {
    WatchedButton test;
    CHECK(std::string(test.button.WindowClass()) == "chameleonButton");
    CHECK(test.button.IsTabStop());
}
