#include "tweaks/sliderlink.h"

#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "runtime/number.h"
#include "support/failureof.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

struct LinkedControls {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frm", "", {}};
    toolkit::Slider& slider = form.Add<toolkit::Slider>(
        "sld",
        toolkit::SliderRange{
            .minimum = 1, .maximum = 400, .smallStep = 1, .largeStep = 5, .tick = 5},
        400);
    toolkit::TextBox& box = form.Add<toolkit::TextBox>("txt");

    LinkedControls() { tweaks::LinkSliderWithBox(slider, box, machine.locale); }
};

}  // namespace

TEST_CASE_FIXTURE(LinkedControls, "moving the slider puts its value into the box") {
    slider.SetValue(17);
    CHECK(box.Text() == "17");
    slider.SetValue(400);
    CHECK(box.Text() == "400");
}

TEST_CASE_FIXTURE(LinkedControls, "a number in the box moves the slider") {
    box.SetText("120");
    CHECK(slider.Value() == 120);
    CHECK(box.Text() == "120");
}

TEST_CASE_FIXTURE(LinkedControls, "a text that is no number leaves the slider where it is") {
    slider.SetValue(120);
    for (const char* text : {"", "abc", "12x", "1 2"}) {
        CAPTURE(text);
        box.SetText(text);
        CHECK(slider.Value() == 120);
        CHECK(box.Text() == text);
    }
}

TEST_CASE_FIXTURE(LinkedControls,
                  "a number is converted to a whole one before it moves the slider") {
    box.SetText("12,5");
    CHECK(slider.Value() == 12);
    CHECK(box.Text() == "12");
    box.SetText("13,5");
    CHECK(slider.Value() == 14);
    box.SetText("1e2");
    CHECK(slider.Value() == 100);
    CHECK(box.Text() == "100");
    box.SetText("&H10");
    CHECK(slider.Value() == 16);
}

TEST_CASE_FIXTURE(LinkedControls, "a number beyond the range leaves the slider where it is") {
    slider.SetValue(120);
    for (const char* text : {"401", "2147483647", "0", "-1", "-2147483648"}) {
        CAPTURE(text);
        box.SetText(text);
        CHECK(slider.Value() == 120);
        CHECK(box.Text() == text);
    }
    slider.SetValue(7);
    CHECK(box.Text() == "7");
}

TEST_CASE_FIXTURE(LinkedControls, "a number that does not fit fails to whoever set the text") {
    slider.SetValue(120);
    for (const char* text : {"2147483648", "-2147483649", "1e300"}) {
        CAPTURE(text);
        CHECK(FailureOf([&] { box.SetText(text); }) == runtime::Overflow);
        CHECK(box.Text() == text);
        CHECK(slider.Value() == 120);
    }
    slider.SetValue(slider.Range().maximum);
    CHECK(box.Text() == runtime::ToText(slider.Range().maximum));
}

TEST_CASE_FIXTURE(LinkedControls, "the two stop each other") {
    int answers = 0;
    const auto follow = slider.onChange;
    slider.onChange = [&] {
        ++answers;
        follow();
    };
    box.SetText("55");
    slider.SetValue(55);
    box.SetText("55");
    CHECK(answers == 1);
}

TEST_CASE_FIXTURE(LinkedControls, "an effect comes with each move, before the box follows") {
    std::vector<std::string> seen;
    tweaks::LinkSliderWithBox(slider, box, machine.locale, [&](std::int32_t value) {
        seen.push_back(std::to_string(value) + " while the box says " + box.Text());
    });
    slider.SetValue(17);
    box.SetText("120");
    box.SetText("0");
    slider.SetValue(1);
    CHECK(seen == std::vector<std::string>{"17 while the box says ", "120 while the box says 120",
                                           "1 while the box says 0"});
    CHECK(box.Text() == "1");
}

TEST_CASE_FIXTURE(LinkedControls, "an effect that fails leaves the box behind") {
    slider.SetValue(17);
    tweaks::LinkSliderWithBox(slider, box, machine.locale, [](std::int32_t) {
        throw runtime::Failure(runtime::InvalidProcedureCall);
    });
    CHECK_THROWS_AS(slider.SetValue(18), runtime::Failure);
    CHECK(slider.Value() == 18);
    CHECK(box.Text() == "17");
}
