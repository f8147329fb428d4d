#include "controls/line3d.h"

#include <doctest/doctest.h>

#include "controls/recordingcanvas.h"
#include "platform/simulated/machine.h"
#include "toolkit/form.h"
#include "toolkit/naturalsize.h"

namespace {

struct Line {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmTest", "", {}};
    controls::Line3D& line = form.Add<controls::Line3D>("Line3D");
};

// As the system measures: what has no characters has no height.
struct DialogText : toolkit::TextMeasure {
    toolkit::Size SizeOf(std::string_view text, bool) const override {
        return {0, text.empty() ? 0 : lineHeight};
    }
    int Scale(int pixels) const override { return pixels; }

    int lineHeight = 13;
};

}  // namespace

TEST_CASE("an engraved line is a white line at 15 twips, then a shadow line at the top") {
    Line test;
    controls_test::RecordingCanvas canvas;
    test.line.Paint(canvas, {0, 0, 300, 2});
    CHECK(canvas.calls ==
          std::vector<std::string>{"Line 0,1 300,1 white", "Line 0,0 300,0 shadow"});
}

TEST_CASE("an engraved line runs over the width that it is given, wherever it lies") {
    Line test;
    controls_test::RecordingCanvas canvas;
    test.line.Paint(canvas, {8, 40, 120, 2});
    CHECK(canvas.calls ==
          std::vector<std::string>{"Line 8,41 128,41 white", "Line 8,40 128,40 shadow"});
}

TEST_CASE("an engraved line is 30 twips high at each resolution, though it has no text") {
    Line test;
    DialogText text;
    CHECK(toolkit::NaturalSize(test.line, text).height == 2);
    text.lineHeight = 20;
    CHECK(toolkit::NaturalSize(test.line, text).height == 3);
    text.lineHeight = 26;
    CHECK(toolkit::NaturalSize(test.line, text).height == 4);
}

TEST_CASE("the keyboard passes an engraved line by, and scripts find it by its window class") {
    Line test;
    CHECK_FALSE(test.line.IsTabStop());
    CHECK(std::string(test.line.WindowClass()) == "Line3D");
}
