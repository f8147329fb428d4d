#include <doctest/doctest.h>

#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "toolkit/journal.h"
#include "toolkit/keys.h"

using namespace toolkit;

namespace {

struct NewFormFixture {
    NotingHost host;
    Form form{host, "frmTest", "Test", {15, 30, 6000, 4000}};
};

}  // namespace

TEST_CASE_FIXTURE(NewFormFixture, "a new form is a normal dialog, neither loaded nor visible") {
    CHECK(form.Name() == "frmTest");
    CHECK(form.Caption() == "Test");
    CHECK(form.Place() == Bounds{15, 30, 6000, 4000});
    CHECK(form.State() == WindowState::Normal);
    CHECK(form.Pointer() == DefaultPointer);
    CHECK(form.InTaskbar());
    CHECK(form.isDialog);
    CHECK_FALSE(form.sizeToContent);
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(form.Visible());
    CHECK(form.View() == nullptr);
}

TEST_CASE_FIXTURE(NewFormFixture,
                  "Return and Escape press nothing on a new form, the focus is on the first") {
    CHECK(form.defaultButton == nullptr);
    CHECK(form.cancelButton == nullptr);
    CHECK(form.firstFocus == nullptr);
}

TEST_CASE_FIXTURE(NewFormFixture,
                  "a form without events of its own lives as well, and uses up no key") {
    form.Show();
    CHECK_FALSE(form.KeyPressed(toolkit::key::F4));
    form.Unload();
    CHECK(host.journal == Journal{"open frmTest", "close frmTest"});
}

TEST_CASE_FIXTURE(NewFormFixture, "a form holds the layout that it was given") {
    CHECK(form.Layout().kind == BoxKind::Space);
    auto& box = form.Add<CheckBox>("chkAutoLogin", "");
    form.SetLayout(Column({Leaf(box)}));
    CHECK(form.Layout().kind == BoxKind::Column);
    REQUIRE(form.Layout().children.size() == 1);
    CHECK(form.Layout().children[0].control == &box);
}
