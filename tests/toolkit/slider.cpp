#include <doctest/doctest.h>

#include <limits>

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using toolkit::Slider;

namespace {

struct SliderFixture {
    NotingHost host;
    TestForm form{host};
    Slider& slider =
        form.Add<Slider>("Level", toolkit::SliderRange{.minimum = 55, .maximum = 255}, 255);
    int changes = 0;

    SliderFixture() {
        slider.onChange = [this] { ++changes; };
    }
};

}  // namespace

TEST_CASE_FIXTURE(SliderFixture, "a slider starts at the value it is given, inside its range") {
    CHECK(slider.Value() == 255);
    CHECK(form.Add<Slider>("low", toolkit::SliderRange{.minimum = 1, .maximum = 400}, 0).Value() ==
          1);
}

TEST_CASE_FIXTURE(SliderFixture, "a slider raises Change when its value changes, and only then") {
    slider.SetValue(100);
    CHECK(slider.Value() == 100);
    CHECK(changes == 1);
    slider.SetValue(100);
    CHECK(changes == 1);
}

TEST_CASE_FIXTURE(SliderFixture, "a value outside the range leaves the slider where it is") {
    slider.SetValue(100);
    for (const std::int32_t value : {54, 256, 0, std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min()}) {
        slider.SetValue(value);
        CHECK(slider.Value() == 100);
    }
    CHECK(changes == 1);
    slider.SetValue(55);
    CHECK(slider.Value() == 55);
    slider.SetValue(255);
    CHECK(slider.Value() == 255);
}

TEST_CASE_FIXTURE(SliderFixture, "a failure in the handler passes to whoever moved the slider") {
    slider.onChange = [] { throw runtime::Failure(runtime::Overflow); };
    CHECK_THROWS_AS(slider.SetValue(60), runtime::Failure);
    CHECK(slider.Value() == 60);
}
