#include "controls/buttonpicture.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "controls/watchedbutton.h"

using controls::DrawPicture;
using controls_test::RecordingCanvas;
using controls_test::TestPicture;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using toolkit::Picture;
using toolkit::Pixels;
using Calls = std::vector<std::string>;

namespace {

auto Icon(const char* name) {
    return std::make_shared<TestPicture>(Picture::Kind::Icon, toolkit::Size{16, 10}, name);
}

const TestPicture TwoPixels{Picture::Kind::Bitmap, {2, 1}, "bitmap", {0xFF0000, 0x0000FF}};

// Where picture and caption are drawn, in their order.
Calls Contents(const WatchedButton& test) {
    Calls calls = test.Painted();
    const auto other = [](const std::string& call) {
        return call.rfind("Draw", 0) != 0 && call.rfind("Text", 0) != 0 &&
               call.rfind("PutPixels", 0) != 0;
    };
    calls.erase(std::remove_if(calls.begin(), calls.end(), other), calls.end());
    return calls;
}

}  // namespace

TEST_CASE("an icon is drawn as it is, whatever the mask colour") {
    RecordingCanvas canvas;
    DrawPicture(canvas, *Icon("icon"), {3, 4}, 0xC0C0C0, false);
    CHECK(canvas.calls == Calls{"Draw icon 3,4"});
}

TEST_CASE("a bitmap without a mask colour is drawn with all its pixels") {
    RecordingCanvas canvas;
    DrawPicture(canvas, TwoPixels, {3, 4}, std::nullopt, false);
    CHECK(canvas.calls == Calls{"Draw bitmap 3,4"});
}

TEST_CASE("a bitmap's pixels in the mask colour show what is behind them") {
    RecordingCanvas canvas;
    canvas.behind = {0x111111, 0x222222};
    // As a colour, red stands in the lowest byte.
    DrawPicture(canvas, TwoPixels, {3, 4}, 0x0000FF, false);
    CHECK(canvas.calls == Calls{"PutPixels 3,4 2x1"});
    CHECK(canvas.put == Pixels{0x111111, 0x0000FF});
}

TEST_CASE("a bitmap of the program's own pixels is put there by itself, masked or not") {
    const toolkit::PixelPicture own({2, 1}, {0xC0C0C0, 0x123456});
    RecordingCanvas canvas;
    canvas.behind = {0x111111, 0x222222};
    DrawPicture(canvas, own, {3, 4}, 0xC0C0C0, false);
    CHECK(canvas.calls == Calls{"PutPixels 3,4 2x1"});
    CHECK(canvas.put == Pixels{0x111111, 0x123456});
    DrawPicture(canvas, own, {3, 4}, std::nullopt, false);
    CHECK(canvas.put == Pixels{0xC0C0C0, 0x123456});
    DrawPicture(canvas, own, {3, 4}, std::nullopt, true);
    CHECK(canvas.put == Pixels{0xC0C0C0, 0x2D2D2D});
}

TEST_CASE("a grey bitmap keeps the brightness of its pixels, and its mask") {
    RecordingCanvas canvas;
    canvas.behind = {0x111111, 0x222222};
    SUBCASE("with a mask") {
        DrawPicture(canvas, TwoPixels, {0, 0}, 0xFF0000, true);
        CHECK(canvas.put == Pixels{0x4C4C4C, 0x222222});
    }
    SUBCASE("without") {
        DrawPicture(canvas, TwoPixels, {0, 0}, std::nullopt, true);
        CHECK(canvas.put == Pixels{0x4C4C4C, 0x1B1B1B});
    }
}

TEST_CASE("of a grey icon only the pixels that it sets turn grey") {
    RecordingCanvas canvas;
    canvas.behind = {0x00FF00, 0x00FF00};
    canvas.withIcon = {0x00FF00, 0xFFFFFF};
    DrawPicture(canvas, TestPicture(Picture::Kind::Icon, {2, 1}, "icon"), {5, 6}, 0, true);
    CHECK(canvas.calls == Calls{"Draw icon 5,6", "PutPixels 5,6 2x1"});
    CHECK(canvas.put == Pixels{0x00FF00, 0xFFFFFF});
}

TEST_CASE("a picture stands left of the caption, right, above, below or behind it") {
    WatchedButton test;
    test.button.SetPictureNormal(Icon("icon"));
    const auto at = [&](std::int16_t position) {
        test.button.SetPicturePosition(position);
        return Contents(test);
    };
    // 16 + 4 + 24 in a row of 67, 10 + 4 + 13 in a column of 15 pixels.
    CHECK(at(0) == Calls{"Draw icon 15,6", "Text 35,5 24x13 \"Test\" text"});
    CHECK(at(1) == Calls{"Draw icon 43,6", "Text 15,5 24x13 \"Test\" text"});
    CHECK(at(2) == Calls{"Draw icon 29,-2", "Text 25,12 24x13 \"Test\" text"});
    CHECK(at(3) == Calls{"Draw icon 29,15", "Text 25,-2 24x13 \"Test\" text"});
    CHECK(at(4) == Calls{"Draw icon 29,6", "Text 25,5 24x13 \"Test\" text"});
}

TEST_CASE("a picture without a caption stands in the middle") {
    WatchedButton test;
    test.button.SetCaption("");
    test.button.SetPictureNormal(Icon("icon"));
    CHECK(Contents(test) == Calls{"Draw icon 29,6"});
}

TEST_CASE("a pressed button's picture goes with it") {
    WatchedButton test;
    test.button.SetPictureNormal(Icon("icon"));
    test.button.MouseDown(MouseButton::Left);
    CHECK(Contents(test) == Calls{"Draw icon 16,7", "Text 36,6 24x13 \"Test\" text"});
}

TEST_CASE("the other picture is shown while the mouse is over the button") {
    WatchedButton test;
    test.button.SetPictureNormal(Icon("normal"));
    test.button.SetPictureOver(Icon("over"));
    CHECK(Contents(test)[0] == "Draw normal 15,6");
    test.MouseEnters();
    CHECK(Contents(test)[0] == "Draw over 15,6");
    test.button.SetPictureOver(nullptr);
    CHECK(Contents(test)[0] == "Draw normal 15,6");
}

TEST_CASE("a grey normal picture gets its colours under the mouse") {
    WatchedButton test;
    test.button.SetPictureNormal(Icon("icon"));
    test.button.SetNormalGrey(true);
    CHECK(Contents(test)[1] == "PutPixels 15,6 16x10");
    test.MouseEnters();
    CHECK(Contents(test)[0] == "Draw icon 15,6");
    CHECK(Contents(test).size() == 2);
}

TEST_CASE("a disabled button's picture is grey") {
    WatchedButton test;
    test.button.SetPictureNormal(Icon("icon"));
    test.button.SetEnabled(false);
    CHECK(Contents(test)[1] == "PutPixels 15,6 16x10");
}

TEST_CASE("a bitmap is masked unless UseMaskColor is off") {
    WatchedButton test;
    test.button.SetPictureNormal(std::make_shared<TestPicture>(
        Picture::Kind::Bitmap, toolkit::Size{1, 1}, "bitmap", Pixels{0xC0C0C0}));
    CHECK(Contents(test)[0].rfind("PutPixels", 0) == 0);
    test.button.SetUseMaskColor(false);
    CHECK(Contents(test)[0].rfind("Draw bitmap", 0) == 0);
}
