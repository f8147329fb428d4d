#include "platform/simulated/forms.h"

#include <doctest/doctest.h>

#include <memory>
#include <stdexcept>

#include "platform/simulated/machine.h"
#include "toolkit/controls.h"

namespace {

struct FormsFixture {
    platform::simulated::Machine machine;
    platform::simulated::Forms& forms = machine.forms;
    toolkit::Form main{forms, "frmMain", "Quillmore", {0, 0, 9990, 7920}};
    toolkit::Form dialog{forms, "frmPassword", "Passwort", {0, 0, 3000, 2000}};
};

}  // namespace

TEST_CASE_FIXTURE(FormsFixture,
                  "forms are open from their loading to their unloading, in that order") {
    CHECK(forms.OpenForms().empty());
    main.Show();
    dialog.Load();
    CHECK(forms.OpenForms() == std::vector<toolkit::Form*>{&main, &dialog});
    main.Unload();
    CHECK(forms.OpenForms() == std::vector<toolkit::Form*>{&dialog});
    dialog.Unload();
    CHECK(forms.OpenForms().empty());
    CHECK(machine.journal.Text() ==
          "OpenForm frmMain\nOpenForm frmPassword\nCloseForm frmMain\nCloseForm frmPassword\n");
}

TEST_CASE_FIXTURE(FormsFixture, "a form that dies loaded is open no longer") {
    {
        toolkit::Form brief(forms, "frmAbout", "", {});
        brief.Load();
        CHECK(forms.OpenForms().size() == 1);
    }
    CHECK(forms.OpenForms().empty());
}

TEST_CASE_FIXTURE(FormsFixture, "a hidden form stays open") {
    main.Show();
    main.Hide();
    CHECK(forms.OpenForms().size() == 1);
}

TEST_CASE_FIXTURE(FormsFixture, "a modal form is handed to its script, which hides or unloads it") {
    std::string seen;
    forms.WhenModal("frmPassword", [&](toolkit::Form& form) {
        CHECK(form.Visible());
        seen += form.Name();
        form.Hide();
    });
    forms.WhenModal("frmPassword", [&](toolkit::Form& form) {
        seen += " again";
        form.Unload();
    });
    dialog.ShowModal();
    CHECK(dialog.Loaded());
    dialog.ShowModal();
    CHECK_FALSE(dialog.Loaded());
    CHECK(seen == "frmPassword again");
    CHECK(machine.journal.Calls("ShowModal").size() == 2);
}

TEST_CASE_FIXTURE(FormsFixture, "a script waits for the form of its name") {
    forms.WhenModal("frmAbout", [](toolkit::Form&) { FAIL("the wrong form"); });
    forms.WhenModal("frmPassword", [](toolkit::Form& form) { form.Hide(); });
    CHECK_NOTHROW(dialog.ShowModal());
}

TEST_CASE_FIXTURE(FormsFixture, "a modal form without a script is a mistake in the test") {
    CHECK_THROWS_AS(dialog.ShowModal(), std::logic_error);
}

TEST_CASE_FIXTURE(FormsFixture, "a modal form left open by its script is a mistake in the test") {
    forms.WhenModal("frmPassword", [](toolkit::Form&) {});
    CHECK_THROWS_AS(dialog.ShowModal(), std::logic_error);
}

TEST_CASE_FIXTURE(FormsFixture, "controls have no views on a machine without a screen") {
    auto& box = main.Add<toolkit::CheckBox>("chkAutoLogin", "Auto-Login");
    main.Show();
    CHECK(box.View() == nullptr);
}

TEST_CASE_FIXTURE(FormsFixture,
                  "a control's window has a number of its own while its form is open") {
    const auto& box = main.Add<toolkit::CheckBox>("chkAutoLogin", "Auto-Login");
    const auto& label = main.Add<toolkit::Label>("lblSP", "3");
    const auto& button = dialog.Add<toolkit::CheckBox>("chkOther", "");
    CHECK(forms.HandleOf(box) == 0);
    main.Load();
    dialog.Load();
    CHECK(forms.HandleOf(box) == 1);
    CHECK(forms.HandleOf(label) == 2);
    CHECK(forms.HandleOf(button) == 3);
    main.Unload();
    CHECK(forms.HandleOf(box) == 0);
    CHECK(forms.HandleOf(button) == 3);
}

TEST_CASE_FIXTURE(FormsFixture, "the work area is that of a screen of 1024 by 740 pixels") {
    CHECK(forms.WorkArea() == toolkit::Bounds{0, 0, 15360, 11100});
}
