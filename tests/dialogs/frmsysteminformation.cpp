#include "dialogs/frmsysteminformation.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "dialogs/systemreport.h"
#include "platform/simulated/machine.h"
#include "toolkit/controls.h"

namespace {

struct ShownReport {
    platform::simulated::Machine machine;
    dialogs::frmSystemInformation form{machine.services};
    toolkit::TextBox& report = form.Find<toolkit::TextBox>("txtReport");

    void Press(const char* name) { form.Find<controls::chameleonButton>(name).Press(); }
};

}  // namespace

TEST_CASE_FIXTURE(ShownReport, "the report can be read and marked, not changed") {
    form.Show();
    CHECK(form.Caption() == "Systeminformation");
    CHECK(report.Text() == dialogs::SystemReport(machine.services));
    CHECK(report.Style().readOnly);
    CHECK(report.Style().multiLine);
}

TEST_CASE_FIXTURE(ShownReport, "each showing reports anew") {
    form.Show();
    Press("cmdClose");
    machine.systemFacts.userName = "Gast";
    form.Show();
    CHECK(report.Text().find("Benutzer:\tGast\r\n") != std::string::npos);
}

TEST_CASE_FIXTURE(ShownReport, "Kopieren puts the whole report into the clipboard") {
    form.Show();
    machine.clipboard.text = "alt";
    Press("cmdCopy");
    CHECK(machine.clipboard.text == report.Text());
    CHECK(machine.messages.Shown().empty());
    CHECK(form.Loaded());
}

TEST_CASE_FIXTURE(ShownReport,
                  "a clipboard that another program holds is told, and keeps its content") {
    form.Show();
    machine.clipboard.text = "alt";
    machine.faults.FailAll("SetClipboardData", 5);
    Press("cmdCopy");
    CHECK(machine.clipboard.text == "alt");
    REQUIRE(machine.messages.Shown().size() == 1);
    CHECK(machine.messages.Shown()[0].title == "Systeminformation");
    CHECK(machine.messages.Shown()[0].style == 48);
    CHECK(machine.messages.Shown()[0].text ==
          "Der Text konnte nicht in die Zwischenablage kopiert werden.");
    CHECK(form.Loaded());
}

TEST_CASE_FIXTURE(ShownReport, "Schließen unloads the dialog, as Return and Escape do") {
    auto& close = form.Find<controls::chameleonButton>("cmdClose");
    CHECK(form.defaultButton == &close);
    CHECK(form.cancelButton == &close);
    CHECK(form.firstFocus == &close);
    form.Show();
    Press("cmdClose");
    CHECK_FALSE(form.Loaded());
}
