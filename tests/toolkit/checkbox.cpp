#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using runtime::Failure;
using toolkit::Aspect;
using toolkit::CheckBox;

namespace {

struct CheckBoxFixture {
    NotingHost host;
    TestForm form{host};
    CheckBox& box = form.Add<CheckBox>("chkAutoLogin", "Auto-Login aktivieren");
    int clicks = 0;

    CheckBoxFixture() {
        box.onClick = [this] { ++clicks; };
    }
};

}  // namespace

TEST_CASE_FIXTURE(CheckBoxFixture, "a new check box is off") {
    CHECK(box.Value() == 0);
}

TEST_CASE_FIXTURE(CheckBoxFixture, "a check box raises Click when its value changes") {
    box.SetValue(1);
    CHECK(clicks == 1);
    box.SetValue(0);
    CHECK(clicks == 2);
}

TEST_CASE_FIXTURE(CheckBoxFixture,
                  "a check box that keeps its value raises nothing and shows nothing new") {
    NotingView view;
    box.SetView(&view);
    box.SetValue(0);
    CHECK(clicks == 0);
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(CheckBoxFixture, "the user's click turns the value over") {
    box.Toggle();
    CHECK(box.Value() == 1);
    box.Toggle();
    CHECK(box.Value() == 0);
    CHECK(clicks == 2);
}

TEST_CASE_FIXTURE(CheckBoxFixture, "the handler meets the new value, already shown") {
    NotingView view;
    box.SetView(&view);
    std::vector<Aspect> shownBefore;
    int met = -1;
    box.onClick = [&] {
        met = box.Value();
        shownBefore = view.shown;
    };
    box.SetValue(1);
    CHECK(met == 1);
    CHECK(shownBefore == std::vector{Aspect::Value});
}

TEST_CASE_FIXTURE(CheckBoxFixture,
                  "a failure in the handler passes to whoever set the value, which stays") {
    box.onClick = [] { throw Failure(runtime::PermissionDenied); };
    CHECK_THROWS_AS(box.SetValue(1), Failure);
    CHECK(box.Value() == 1);
}

TEST_CASE_FIXTURE(CheckBoxFixture, "a check box may be grey, which the user's click turns on") {
    box.SetValue(2);
    CHECK(box.Value() == 2);
    box.Toggle();
    CHECK(box.Value() == 1);
    CHECK(clicks == 2);
}

TEST_CASE_FIXTURE(CheckBoxFixture, "a check box refuses a value that is none of 0, 1 and 2") {
    for (int value : {-1, 3, 255}) {
        CAPTURE(value);
        CHECK_THROWS_AS(box.SetValue(value), Failure);
        CHECK(box.Value() == 0);
    }
    CHECK(clicks == 0);
}

TEST_CASE_FIXTURE(CheckBoxFixture, "a check box to which nobody listens changes all the same") {
    box.onClick = nullptr;
    box.SetValue(1);
    CHECK(box.Value() == 1);
}
