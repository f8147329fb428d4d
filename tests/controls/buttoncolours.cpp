#include "controls/buttoncolours.h"

#include <doctest/doctest.h>

#include "controls/watchedbutton.h"

using controls::Mix;
using controls_test::Client;
using controls_test::RecordingCanvas;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Calls = std::vector<std::string>;

TEST_CASE("colours are mixed channel by channel") {
    CHECK(Mix(0x000000, 0xFFFFFF, 0) == 0x000000);
    CHECK(Mix(0x000000, 0xFFFFFF, 100) == 0xFFFFFF);
    CHECK(Mix(0x102030, 0x302010, 50) == 0x202020);
    CHECK(Mix(0xFF0000, 0x0000FF, 50) == 0x80007F);
}

TEST_CASE("the first scheme has its own face in the system's edges") {
    WatchedButton test;
    test.button.SetBackColor(0x0000FF);
    const Calls calls = test.Painted();
    CHECK(calls[0] == "FillRect 0,0 75x23 #FF0000");
    CHECK(calls[2] == "Line 0,0 74,0 highlight");
}

TEST_CASE("the second scheme mixes its edges from the face") {
    WatchedButton test;
    test.button.SetColorScheme(2);
    test.button.SetBackColor(0x0000FF);
    const Calls calls = test.Painted();
    CHECK(calls[0] == "FillRect 0,0 75x23 #FF0000");
    CHECK(calls[2] == "Line 0,0 74,0 #FFCCCC");
    CHECK(calls[4] == "Line 74,0 74,22 #5A0000");
}

TEST_CASE("the third scheme has the system's colours whatever the button's are") {
    WatchedButton test;
    const Calls usual = test.Painted();
    test.button.SetColorScheme(3);
    test.button.SetBackColor(0x0000FF);
    test.button.SetForeColor(0x00FF00);
    CHECK(test.Painted() == usual);
}

TEST_CASE("under the mouse the second scheme has the other face, and only the second") {
    WatchedButton test;
    test.button.SetBackColor(0x0000FF);
    test.button.SetBackOver(0x00FF00);
    test.MouseEnters();
    CHECK(test.Painted()[0] == "FillRect 0,0 75x23 #FF0000");
    test.button.SetColorScheme(2);
    const Calls calls = test.Painted();
    CHECK(calls[0] == "FillRect 0,0 75x23 #00FF00");
    CHECK(calls[2] == "Line 0,0 74,0 #CCFFCC");
    CHECK(test.button.Properties().backColor == 0x0000FF);
    CHECK(test.button.Properties().backOver == 0x00FF00);
    test.button.MouseDown(MouseButton::Left);
    CHECK(test.Painted()[0] == "FillRect 0,0 75x23 #FF0000");
}

TEST_CASE("under the mouse the caption has the other text colour, in each scheme") {
    WatchedButton test;
    test.button.SetForeOver(0x0000FF);
    CHECK(test.Painted()[1] == "Text 25,5 24x13 \"Test\" text");
    test.MouseEnters();
    CHECK(test.Painted()[1] == "Text 25,5 24x13 \"Test\" #FF0000");
    test.button.SetColorScheme(2);
    CHECK(test.Painted()[1] == "Text 25,5 24x13 \"Test\" #FF0000");
}

TEST_CASE("soft edges are halfway to the face") {
    WatchedButton test;
    test.button.SetSoftBevel(true);
    const Calls calls = test.Painted();
    CHECK(calls[0] == "FillRect 0,0 75x23 face");
    CHECK(calls[2] == "Line 0,0 74,0 #E9E8E4");
    CHECK(calls[4] == "Line 74,0 74,22 #8A8884");
}

TEST_CASE("the colours are calculated anew after a change of colour, scheme, look or bevel only") {
    WatchedButton test;
    RecordingCanvas canvas;
    const auto calculates = [&] {
        const int before = canvas.lookUps;
        test.button.Paint(canvas, Client);
        return canvas.lookUps > before;
    };
    CHECK(calculates());
    CHECK_FALSE(calculates());
    test.button.SetCaption("anders");
    CHECK_FALSE(calculates());
    test.button.SetBackColor(1);
    CHECK(calculates());
    test.button.SetForeOver(1);
    CHECK(calculates());
    test.button.SetColorScheme(3);
    CHECK(calculates());
    test.button.SetButtonType(4);
    CHECK(calculates());
    test.button.SetSoftBevel(true);
    CHECK(calculates());
    test.button.SettingsChanged();
    CHECK(calculates());
    CHECK_FALSE(calculates());
}

TEST_CASE("a drawing that fails under the mouse leaves the button its own colours") {
    WatchedButton test;
    test.button.SetColorScheme(2);
    test.button.SetBackColor(0x0000FF);
    test.button.SetBackOver(0xFF0000);
    const Calls before = test.Painted();
    test.MouseEnters();
    RecordingCanvas canvas;
    canvas.fails = true;
    CHECK_THROWS(test.button.Paint(canvas, Client));
    CHECK(test.button.Properties().backColor == 0x0000FF);
    CHECK(test.button.Properties().backOver == 0xFF0000);
    test.MouseLeaves(MouseButton::None);
    CHECK(test.Painted() == before);
}
