#include "toolkit/progressbar.h"

#include <doctest/doctest.h>

#include "support/failureof.h"
#include "toolkit/journal.h"

using toolkit::ProgressBar;

namespace {

struct ProgressBarFixture {
    NotingHost host;
    TestForm form{host};
    ProgressBar& bar = form.Add<ProgressBar>("prgbarIE1");
};

}  // namespace

TEST_CASE_FIXTURE(ProgressBarFixture, "a progress bar starts empty, from 0 to 100") {
    CHECK(bar.Minimum() == 0);
    CHECK(bar.Maximum() == 100);
    CHECK(bar.Value() == 0);
}

TEST_CASE_FIXTURE(ProgressBarFixture, "a maximum of 0 is refused, one of 1 is not") {
    CHECK(FailureOf([&] { bar.SetMaximum(0); }) == runtime::InvalidPropertyValue);
    CHECK(bar.Maximum() == 100);
    bar.SetMaximum(1);
    CHECK(bar.Maximum() == 1);
}

TEST_CASE_FIXTURE(ProgressBarFixture, "a minimum of the maximum is refused") {
    CHECK(FailureOf([&] { bar.SetMinimum(100); }) == runtime::InvalidPropertyValue);
    bar.SetMinimum(99);
    CHECK(bar.Value() == 99);
}

TEST_CASE_FIXTURE(ProgressBarFixture, "a value outside is refused, and the old one stays") {
    bar.SetValue(100);
    CHECK(FailureOf([&] { bar.SetValue(101); }) == runtime::InvalidPropertyValue);
    CHECK(FailureOf([&] { bar.SetValue(-1); }) == runtime::InvalidPropertyValue);
    CHECK(bar.Value() == 100);
}

TEST_CASE_FIXTURE(ProgressBarFixture, "a smaller maximum takes the value along") {
    bar.SetValue(80);
    bar.SetMaximum(10);
    CHECK(bar.Value() == 10);
}

TEST_CASE_FIXTURE(ProgressBarFixture, "the window is told of a new value once") {
    NotingView view;
    bar.SetView(&view);
    bar.SetValue(5);
    bar.SetValue(5);
    CHECK(view.shown == std::vector<toolkit::Aspect>{toolkit::Aspect::Value});
}
