#include <doctest/doctest.h>

#include "runtime/mistake.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "toolkit/journal.h"

using namespace toolkit;

namespace {

struct FormControlsFixture {
    NotingHost host;
    TestForm form{host};
};

}  // namespace

TEST_CASE_FIXTURE(FormControlsFixture, "a form finds its controls by name") {
    auto& box = form.Add<CheckBox>("chkAutoLogin", "");
    auto& label = form.Add<Label>("lblVerwaltung(3)", "");
    CHECK(&form.Find<CheckBox>("chkAutoLogin") == &box);
    CHECK(form.FindControl("lblVerwaltung(3)") == &label);
}

TEST_CASE_FIXTURE(FormControlsFixture, "a name is found exactly as it is written") {
    form.Add<CheckBox>("chkAutoLogin", "");
    CHECK(form.FindControl("chkautologin") == nullptr);
    CHECK(form.FindControl("") == nullptr);
}

TEST_CASE_FIXTURE(FormControlsFixture,
                  "asking for a control that is not there is a mistake in the program") {
    CHECK_THROWS_AS(form.Find<CheckBox>("chkAutoLogin"), runtime::Mistake);
}

TEST_CASE_FIXTURE(FormControlsFixture,
                  "asking for a control of another class is a mistake in the program") {
    form.Add<Label>("chkAutoLogin", "");
    CHECK_THROWS_AS(form.Find<CheckBox>("chkAutoLogin"), runtime::Mistake);
}

TEST_CASE_FIXTURE(FormControlsFixture, "a second control of the same name is refused") {
    auto& first = form.Add<Label>("Label1", "");
    CHECK_THROWS_AS(form.Add<Label>("Label1", ""), runtime::Mistake);
    CHECK(form.Controls().size() == 1);
    CHECK(form.FindControl("Label1") == &first);
}

TEST_CASE_FIXTURE(FormControlsFixture,
                  "controls keep the order in which they were made, which is the tab order") {
    form.Add<TextBox>("z");
    form.Add<TextBox>("a");
    form.Add<TextBox>("m");
    REQUIRE(form.Controls().size() == 3);
    CHECK(form.Controls()[0]->Name() == "z");
    CHECK(form.Controls()[1]->Name() == "a");
    CHECK(form.Controls()[2]->Name() == "m");
}
