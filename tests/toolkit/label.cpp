#include <doctest/doctest.h>

#include "toolkit/controls.h"
#include "toolkit/journal.h"

using namespace toolkit;

namespace {

struct LabelFixture {
    NotingHost host;
    TestForm form{host};
    Label& label = form.Add<Label>("lbl", "Text");
    NotingView view;

    LabelFixture() { label.SetView(&view); }
};

}  // namespace

TEST_CASE("a label has the system's colour until it is given one") {
    LabelFixture f;
    CHECK(f.label.TextColour() == std::nullopt);
    f.label.SetTextColour(Red);
    CHECK(f.label.TextColour() == 255u);
}

TEST_CASE("the window of a label hears of a new colour, and not of the same one again") {
    LabelFixture f;
    f.label.SetTextColour(Black);
    f.label.SetTextColour(Black);
    CHECK(f.view.shown == std::vector<Aspect>{Aspect::TextColour});
    f.label.SetTextColour(Red);
    CHECK(f.view.shown.size() == 2);
}

TEST_CASE("clicks and moves reach whoever listens to a label") {
    LabelFixture f;
    f.label.Click();
    f.label.MouseMoved();
    int clicks = 0;
    int moves = 0;
    f.label.onClick = [&] { ++clicks; };
    f.label.onMouseMove = [&] { ++moves; };
    f.label.Click();
    f.label.MouseMoved();
    CHECK(clicks == 1);
    CHECK(moves == 1);
}

TEST_CASE("a disabled label hears nothing") {
    LabelFixture f;
    int events = 0;
    f.label.onClick = [&] { ++events; };
    f.label.onMouseMove = [&] { ++events; };
    f.label.SetEnabled(false);
    f.label.Click();
    f.label.MouseMoved();
    CHECK(events == 0);
}

TEST_CASE("moves reach whoever listens to a frame, unless it is disabled") {
    LabelFixture f;
    auto& frame = f.form.Add<Frame>("fra", "Rahmen");
    frame.MouseMoved();
    int moves = 0;
    frame.onMouseMove = [&] { ++moves; };
    frame.MouseMoved();
    CHECK(moves == 1);
    frame.SetEnabled(false);
    frame.MouseMoved();
    CHECK(moves == 1);
}
