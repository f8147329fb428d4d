#include <doctest/doctest.h>

#include <limits>

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using toolkit::Slider;

namespace {

struct Fixture {
    NotingHost host;
    TestForm form{host};
    Slider& slider =
        form.Add<Slider>("Level", toolkit::SliderRange{.minimum = 55, .maximum = 255}, 255);
    int changes = 0;

    Fixture() {
        slider.onChange = [this] { ++changes; };
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a slider starts at the value it is given, inside its range") {
    CHECK(slider.Value() == 255);
    CHECK(form.Add<Slider>("low", toolkit::SliderRange{.minimum = 1, .maximum = 400}, 0).Value() ==
          1);
}

TEST_CASE_FIXTURE(Fixture, "a slider raises Change when its value changes, and only then") {
    slider.SetValue(100);
    CHECK(slider.Value() == 100);
    CHECK(changes == 1);
    slider.SetValue(100);
    CHECK(changes == 1);
}

TEST_CASE_FIXTURE(Fixture, "a value outside the range is taken to its nearer end") {
    slider.SetValue(0);
    CHECK(slider.Value() == 55);
    slider.SetValue(std::numeric_limits<std::int32_t>::max());
    CHECK(slider.Value() == 255);
    slider.SetValue(std::numeric_limits<std::int32_t>::min());
    CHECK(slider.Value() == 55);
    CHECK(changes == 3);
}

TEST_CASE_FIXTURE(Fixture, "a value beyond the end where the slider stands raises nothing") {
    slider.SetValue(300);
    CHECK(changes == 0);
}

TEST_CASE_FIXTURE(Fixture, "a failure in the handler passes to whoever moved the slider") {
    slider.onChange = [] { throw runtime::Failure(runtime::Overflow); };
    CHECK_THROWS_AS(slider.SetValue(60), runtime::Failure);
    CHECK(slider.Value() == 60);
}
