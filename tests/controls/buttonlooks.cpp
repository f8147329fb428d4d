// All fourteen looks, beside the default one, whose drawing buttonlook.cpp spells out.
#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "controls/watchedbutton.h"

using controls::ButtonState;
using controls_test::Client;
using controls_test::RecordingCanvas;
using controls_test::WatchedButton;
using toolkit::MouseButton;
using Calls = std::vector<std::string>;

namespace {

constexpr std::int16_t Looks = 14;

struct State {
    const char* name;
    void (*set)(WatchedButton&);
};

constexpr State States[] = {
    {"normal", [](WatchedButton&) {}},
    {"hovered", [](WatchedButton& test) { test.MouseEnters(); }},
    {"pressed", [](WatchedButton& test) { test.button.MouseDown(MouseButton::Left); }},
    {"focus and default",
     [](WatchedButton& test) {
         test.button.MarkDefault(true);
         test.button.FocusChanged(true);
     }},
    {"disabled", [](WatchedButton& test) { test.button.SetEnabled(false); }},
};

Calls Drawn(std::int16_t look, const State& state) {
    WatchedButton test;
    test.button.SetButtonType(look);
    state.set(test);
    return test.Painted();
}

std::string LinesOf(const Calls& calls) {
    std::string lines;
    for (const std::string& call : calls) lines += call + '\n';
    return lines;
}

std::size_t First(const Calls& calls, const std::string& beginning) {
    const auto found = std::find_if(calls.begin(), calls.end(), [&](const std::string& call) {
        return call.rfind(beginning, 0) == 0;
    });
    return static_cast<std::size_t>(found - calls.begin());
}

}  // namespace

TEST_CASE("the looks' drawing calls are those of the golden file") {
    std::string all;
    for (std::int16_t look = 1; look <= Looks; ++look) {
        for (const State& state : States) {
            all += "look " + std::to_string(look) + ", " + state.name + '\n' +
                   LinesOf(Drawn(look, state)) + '\n';
        }
    }
    const std::string path = QUILLMORE_SOURCE_DIR "/tests/golden/buttonlooks.txt";
    const char* update = std::getenv("QUILLMORE_UPDATE_GOLDEN");
    if (update && std::string(update) == "1") {
        std::ofstream(path, std::ios::binary) << all;
        FAIL("written anew, nothing compared: " << path);
    }
    std::ostringstream golden;
    golden << std::ifstream(path, std::ios::binary).rdbuf();
    CHECK(all == golden.str());
}

TEST_CASE("no look is another one") {
    for (std::int16_t look = 1; look <= Looks; ++look) {
        for (std::int16_t other = 1; other < look; ++other) {
            CAPTURE(look);
            CAPTURE(other);
            CHECK((Drawn(look, States[0]) != Drawn(other, States[0]) ||
                   Drawn(look, States[1]) != Drawn(other, States[1])));
        }
    }
}

TEST_CASE("every look shows that it is down, in the focus and disabled") {
    for (std::int16_t look = 1; look <= Looks; ++look) {
        CAPTURE(look);
        const Calls normal = Drawn(look, States[0]);
        for (const int state : {2, 3, 4}) CHECK(Drawn(look, States[state]) != normal);
    }
}

TEST_CASE("every look but the default one shows that the mouse is over it") {
    for (std::int16_t look = 1; look <= Looks; ++look) {
        CAPTURE(look);
        CHECK((Drawn(look, States[1]) != Drawn(look, States[0])) == (look != 2));
    }
}

TEST_CASE("every look draws face, caption, edges and focus rectangle in this order") {
    for (std::int16_t look = 1; look <= Looks; ++look) {
        CAPTURE(look);
        const Calls calls = Drawn(look, States[3]);
        const std::size_t caption = First(calls, "Text");
        CHECK(calls.front().rfind(look == 11                             ? "Background 0,0 75x23"
                                  : look == 3 || look == 7 || look == 13 ? "Line 0,0 75,0"
                                                                         : "FillRect 0,0 75x23",
                                  0) == 0);
        CHECK(caption < calls.size() - 1);
        CHECK(calls.back().rfind("FocusRect", 0) == 0);
        CHECK(First(calls, "FocusRect") == calls.size() - 1);
    }
}

TEST_CASE("the edges lie over the caption") {
    for (std::int16_t look = 1; look <= Looks; ++look) {
        CAPTURE(look);
        const Calls calls = Drawn(look, States[1]);
        CHECK(First(calls, "Text") < calls.size() - 1);
        CHECK((calls.back().rfind("Line", 0) == 0 || calls.back().rfind("Pixel", 0) == 0 ||
               calls.back().rfind("Ellipse", 0) == 0));
    }
}

TEST_CASE("a number without a look is drawn in the default one") {
    for (const int number : {-32768, -1, 0, 15, 32767}) {
        CAPTURE(number);
        CHECK(Drawn(static_cast<std::int16_t>(number), States[0]) == Drawn(2, States[0]));
    }
}

TEST_CASE("a long caption gets several lines, centred between top and bottom") {
    WatchedButton test;
    test.button.SetCaption("Sehr lange Zeile");
    RecordingCanvas canvas;
    test.button.Paint(canvas, {0, 0, 75, 40});
    CHECK(canvas.calls[1] == "Text 4,7 66x26 \"Sehr lange Zeile\" text");
}

TEST_CASE("a caption is measured once until it, the font, the size or the picture changes") {
    WatchedButton test;
    RecordingCanvas canvas;
    const auto measures = [&](toolkit::Rect area) {
        const int before = canvas.measures;
        test.button.Paint(canvas, area);
        return canvas.measures - before;
    };
    CHECK(measures(Client) == 1);
    CHECK(measures(Client) == 0);
    test.button.SetCaption("anders");
    CHECK(measures(Client) == 1);
    test.button.SetFont({"Arial"});
    CHECK(measures(Client) == 1);
    test.button.SetPictureNormal(nullptr);
    CHECK(measures(Client) == 1);
    CHECK(measures({0, 0, 80, 23}) == 1);
    test.MouseEnters();
    CHECK(measures({0, 0, 80, 23}) == 0);
}

TEST_CASE("a font of its own is used before the caption is measured and drawn") {
    WatchedButton test;
    test.button.SetFont({"Arial", 10});
    CHECK(test.Painted().front() == "UseFont Arial");
}

TEST_CASE("the caption's effects stand a pixel aside of the letters") {
    WatchedButton test;
    const auto text = [&](std::int16_t effect) {
        test.button.SetSpecialEffect(effect);
        Calls calls = test.Painted();
        calls.erase(std::remove_if(calls.begin(), calls.end(),
                                   [](const std::string& call) { return call.rfind("Text", 0); }),
                    calls.end());
        return calls;
    };
    const std::string plain = "Text 25,5 24x13 \"Test\" text";
    CHECK(text(0) == Calls{plain});
    CHECK(text(1) == Calls{"Text 24,4 24x13 \"Test\" highlight", plain});
    CHECK(text(2) == Calls{"Text 26,6 24x13 \"Test\" highlight", plain});
    CHECK(text(3) == Calls{"Text 26,6 24x13 \"Test\" shadow", plain});
    CHECK(text(4) == Calls{plain});
    CHECK(text(-1) == Calls{plain});
}
