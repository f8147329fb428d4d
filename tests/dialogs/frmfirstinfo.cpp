#include "dialogs/frmfirstinfo.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/controls.h"

namespace {

using Setting = std::optional<std::string>;

// The warning, shown to a user who does something with it.
struct ShownWarning {
    platform::simulated::Machine machine;
    dialogs::frmFirstInfo form{machine.services};

    void To(std::function<void(toolkit::Form&)> user) {
        machine.forms.WhenModal("frmFirstInfo", std::move(user));
        form.ShowModal();
    }
    Setting Accepted() const { return machine.settingsStore.Stored("Options", "Accepted"); }
    controls::chameleonButton& Button(const char* name) {
        return form.Find<controls::chameleonButton>(name);
    }
};

void Press(toolkit::Form& form, const char* name) {
    form.Find<controls::chameleonButton>(name).Press();
}

}  // namespace

TEST_CASE("accepting the warning stores it and unloads the dialog") {
    ShownWarning test;
    test.To([](toolkit::Form& form) { Press(form, "Command2"); });
    CHECK(test.Accepted() == Setting("Yes"));
    CHECK_FALSE(test.form.Loaded());
}

TEST_CASE("refusing the warning stores nothing and unloads the dialog") {
    ShownWarning test;
    test.To([](toolkit::Form& form) { Press(form, "Command1"); });
    CHECK(test.Accepted() == Setting());
    CHECK(test.machine.settingsStore.All().empty());
    CHECK_FALSE(test.form.Loaded());
}

TEST_CASE("refusing the warning leaves a stored answer as it was") {
    ShownWarning test;
    test.machine.settingsStore.Put("Options", "Accepted", "Nein");
    test.To([](toolkit::Form& form) { Press(form, "Command1"); });
    CHECK(test.Accepted() == Setting("Nein"));
}

TEST_CASE("closing the warning by its close box leaves Accepted unset") {
    ShownWarning test;
    test.To([](toolkit::Form& form) { form.Unload(); });
    CHECK(test.Accepted() == Setting());
}

TEST_CASE("an answer that cannot be stored is a failure that leaves the warning open") {
    ShownWarning test;
    test.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    test.form.Load();
    CHECK(FailureOf([&] { Press(test.form, "Command2"); }) == runtime::InvalidProcedureCall);
    CHECK(test.form.Loaded());
    CHECK(test.Accepted() == Setting());
}

TEST_CASE("the warning says what is at stake and what accepting it means") {
    ShownWarning test;
    CHECK(test.form.Name() == "frmFirstInfo");
    CHECK(test.form.Caption() == "Warnung");
    const auto says = [&](const char* label, const char* words) {
        INFO(label << " " << words);
        const std::string& text = test.form.FindControl(label)->Caption();
        CHECK(text.find(words) != std::string::npos);
    };
    says("Label1", "Daten verloren gehen");
    says("Label1", "Registrierung");
    says("Label1", "auf eigene Gefahr");
    says("Label1", "Sicherung");
    says("Label2",
         "\""
         "Akzeptieren\"");
    CHECK(test.Button("Command2").Caption() == "Akzeptieren");
    CHECK(test.Button("Command1").Caption() == "Ablehnen");
}

TEST_CASE("the warning opens on the refusal, which Escape presses; Return alone accepts nothing") {
    ShownWarning test;
    CHECK(test.form.firstFocus == &test.Button("Command1"));
    CHECK(test.form.cancelButton == &test.Button("Command1"));
    CHECK(test.form.defaultButton == nullptr);
}
