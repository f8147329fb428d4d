#include "app/apply.h"

#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using platform::Registry;

namespace {

constexpr char Confirm[] = "Einstellungen speichern";
constexpr char RestorePoint[] = "Systemwiederherstellungspunkt";
constexpr char Done[] = "Einstellungen gespeichert";

// The program with an Auto-Login password, and a user who types one into the dialog.
struct Dialogue : Program {
    Dialogue() {
        REQUIRE(Start());
        FillNumbers();
    }

    void SetAutoLogin(const char* password) {
        Check("chkAutoLogin").SetValue(1);
        Text("txtALPassword").SetText(password);
    }

    void TypePassword(const char* password, const char* button) {
        machine.forms.WhenModal("frmPassword", [=](toolkit::Form& dialog) {
            CHECK(dialog.Find<toolkit::TextBox>("txtPasswort").Text().empty());
            dialog.Find<toolkit::TextBox>("txtPasswort").SetText(password);
            dialog.Find<controls::chameleonButton>(button).Press();
        });
    }

    void Answer(int confirm, int restorePoint, int restart) {
        machine.messages.Answer(Confirm, confirm);
        machine.messages.Answer(RestorePoint, restorePoint);
        machine.messages.Answer(Done, restart);
    }

    bool Apply() {
        machine.journal.Clear();
        return Ends([&] { Press("cmdApply"); });
    }

    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const auto& message : machine.messages.Shown()) titles.push_back(message.title);
        return titles;
    }

    bool Wrote() { return !machine.journal.Calls("RegSetValueExA").empty(); }
};

using Strings = std::vector<std::string>;

}  // namespace

TEST_CASE("the three questions carry their texts, buttons and icons") {
    Dialogue dialogue;
    dialogue.Answer(6, 7, 7);
    CHECK_FALSE(dialogue.Apply());
    const auto& shown = dialogue.machine.messages.Shown();
    REQUIRE(shown.size() == 3);
    CHECK(shown[0] == platform::simulated::ShownMessage{
                          Confirm, "Sollen die Einstellungen übernommen werden?", 36});
    CHECK(shown[1] ==
          platform::simulated::ShownMessage{
              RestorePoint,
              "Sollen ein Systemwiederherstellungspunkt gesetzt werden?\r\n\r\n(Sie können damit "
              "das System wieder herstellen wenn es nach den\r\nÄnderungen nicht mehr "
              "Ordnungsgemäß funktioniert!)",
              36});
    CHECK(shown[2] ==
          platform::simulated::ShownMessage{
              Done,
              "Einstellungen erfolgreich übernommen!\r\n\r\nZum initialisieren einiger "
              "Einstellungen ist ein Neustart erforderlich.\r\n\r\nSoll der Neustart von Windows "
              "nun durchgeführt werden?",
              36});
}

TEST_CASE("No to the first question does nothing at all") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("geheim");
    dialogue.machine.messages.Answer(Confirm, 7);
    CHECK_FALSE(dialogue.Apply());
    CHECK(dialogue.Titles() == Strings{Confirm});
    CHECK_FALSE(dialogue.Wrote());
    CHECK(dialogue.machine.journal.Calls("SaveSetting").empty());
    CHECK(dialogue.machine.journal.Calls("ShowModal").empty());
}

TEST_CASE("Auto-Login with an empty password asks for no password") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("");
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.machine.journal.Calls("ShowModal").empty());
    CHECK(dialogue.Wrote());
}

TEST_CASE("a password without Auto-Login asks for no password") {
    Dialogue dialogue;
    dialogue.Text("txtALPassword").SetText("geheim");
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.machine.journal.Calls("ShowModal").empty());
    CHECK(dialogue.Wrote());
}

TEST_CASE("the right password goes on") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("Geheim-ß");
    dialogue.TypePassword("Geheim-ß", "cmdOK");
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
    CHECK(dialogue.Wrote());
}

TEST_CASE("a wrong password, another letter case and Cancel all end in the same message") {
    const std::pair<const char*, const char*> attempts[] = {
        {"falsch", "cmdOK"}, {"geheim", "cmdOK"}, {"", "cmdOK"}, {"Geheim", "cmdCancel"}};
    for (const auto& [typed, button] : attempts) {
        CAPTURE(typed);
        Dialogue dialogue;
        dialogue.SetAutoLogin("Geheim");
        dialogue.TypePassword(typed, button);
        dialogue.machine.messages.Answer(Confirm, 6);
        CHECK_FALSE(dialogue.Apply());
        REQUIRE(dialogue.Titles() == Strings{Confirm, "Passwort falsch"});
        CHECK(dialogue.machine.messages.Shown()[1] ==
              platform::simulated::ShownMessage{
                  "Passwort falsch",
                  "Das Passwort ist falsch.\r\nBitte Passworteingabe beim Auto-Login überprüfen!",
                  48});
        CHECK_FALSE(dialogue.Wrote());
        CHECK(dialogue.machine.journal.Calls("SaveSetting").empty());
    }
}

TEST_CASE("closing the password dialog by its close box counts as a wrong password") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("Geheim");
    dialogue.machine.forms.WhenModal("frmPassword", [](toolkit::Form& dialog) {
        dialog.Find<toolkit::TextBox>("txtPasswort").SetText("Geheim");
        dialog.Unload();
    });
    dialogue.machine.messages.Answer(Confirm, 6);
    dialogue.Apply();
    CHECK(dialogue.Titles() == Strings{Confirm, "Passwort falsch"});
    CHECK_FALSE(dialogue.Wrote());
}

TEST_CASE("the password dialog opens empty at each press") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("Geheim");
    for (int press = 0; press < 2; ++press) {
        dialogue.TypePassword("Geheim", "cmdOK");
        dialogue.Answer(6, 7, 7);
        dialogue.Apply();
        CHECK(dialogue.Wrote());
    }
}

TEST_CASE("Yes to the restore point starts the wizard visibly and waits for its end") {
    Dialogue dialogue;
    dialogue.Answer(6, 6, 7);
    dialogue.Apply();
    REQUIRE(dialogue.machine.processes.All().size() == 1);
    const auto& wizard = dialogue.machine.processes.All()[0];
    CHECK(wizard.commandLine == "C:\\WINDOWS\\system32\\restore\\rstrui.exe");
    CHECK(wizard.startup.wShowWindow == 1);
    CHECK(wizard.waitedFor);
    CHECK(dialogue.Wrote());
}

TEST_CASE("a missing restore wizard is passed over in silence") {
    Dialogue dialogue;
    dialogue.machine.faults.FailAll("CreateProcessA", 2);
    dialogue.Answer(6, 6, 7);
    dialogue.Apply();
    CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
    CHECK(dialogue.Wrote());
    CHECK_FALSE(dialogue.machine.files.Content(LogPath).has_value());
}

TEST_CASE("after the wizard the program's options are stored, and then the system is written") {
    Dialogue dialogue;
    dialogue.Answer(6, 6, 7);
    dialogue.Apply();
    std::size_t wizardEnd = 0;
    std::size_t firstSave = 0;
    std::size_t lastSave = 0;
    std::size_t firstSet = 0;
    const auto& lines = dialogue.machine.journal.Lines();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].starts_with("WaitForSingleObject")) wizardEnd = i;
        if (firstSave == 0 && lines[i].starts_with("SaveSetting")) firstSave = i;
        // The preview's own setting is saved by the pass.
        if (lines[i].starts_with("SaveSetting \"Quillmore\" \"Options\"")) lastSave = i;
        if (firstSet == 0 && lines[i].rfind("RegSetValueExA", 0) == 0) firstSet = i;
    }
    CHECK(wizardEnd > 0);
    CHECK(wizardEnd < firstSave);
    CHECK(lastSave > 0);
    CHECK(lastSave < firstSet);
}

TEST_CASE("No to the restart keeps the program open and the controls as they are") {
    Dialogue dialogue;
    dialogue.Check("chkLargeSystemCache").SetValue(1);
    dialogue.Answer(6, 7, 7);
    CHECK_FALSE(dialogue.Apply());
    CHECK(dialogue.machine.session.requests.empty());
    CHECK(dialogue.Check("chkLargeSystemCache").Value() == 1);
    CHECK(dialogue.machine.registry.Value(Registry::LocalMachine, MemoryKey, "LargeSystemCache") ==
          platform::simulated::DwordValue(1));
}

TEST_CASE("the restart is asked about and never forced, whatever the boxes for restarts say") {
    for (const int asks : {0, 1}) {
        for (const int forces : {0, 1}) {
            CAPTURE(asks);
            CAPTURE(forces);
            Dialogue dialogue;
            dialogue.Check("chkRebootQuestion").SetValue(asks);
            dialogue.Check("chkForceReboot").SetValue(forces);
            dialogue.Answer(6, 7, 6);
            CHECK(dialogue.Apply());
            CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
            CHECK(dialogue.machine.session.requests ==
                  std::vector<platform::simulated::Session::Request>{{2, 0}});
            CHECK(dialogue.Stored("Tab") == "0");
        }
    }
}

TEST_CASE("a first question that cannot be shown writes nothing") {
    Dialogue dialogue;
    dialogue.machine.faults.FailOn(Confirm, runtime::OutOfMemory);
    CHECK_FALSE(dialogue.Apply());
    CHECK(dialogue.Titles().empty());
    CHECK_FALSE(dialogue.Wrote());
    CHECK(dialogue.machine.journal.Calls("SaveSetting").empty());
}

TEST_CASE("a restore point that cannot be asked about is not made, and all is written") {
    Dialogue dialogue;
    dialogue.machine.faults.FailOn(RestorePoint, runtime::OutOfMemory);
    dialogue.Answer(6, 6, 7);
    CHECK_FALSE(dialogue.Apply());
    CHECK(dialogue.machine.processes.All().empty());
    CHECK(dialogue.Titles() == Strings{Confirm, Done});
    CHECK(dialogue.Wrote());
}

TEST_CASE("a restart that cannot be asked about does not come") {
    Dialogue dialogue;
    dialogue.machine.faults.FailOn(Done, runtime::OutOfMemory);
    dialogue.Answer(6, 7, 6);
    CHECK_FALSE(dialogue.Apply());
    CHECK(dialogue.Wrote());
    CHECK(dialogue.machine.session.requests.empty());
    CHECK(dialogue.form->Loaded());
}

TEST_CASE("the hourglass is shown while the system is written, not while Apply asks") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("Geheim");
    dialogue.Combo("cboMTU").SetText("");
    std::vector<int> pointers;
    const auto look = [&] { pointers.push_back(dialogue.form->Pointer()); };
    dialogue.machine.forms.WhenModal("frmPassword", [&](toolkit::Form& dialog) {
        look();
        dialog.Find<toolkit::TextBox>("txtPasswort").SetText("Geheim");
        dialog.Hide();
    });
    for (const char* title : {Confirm, RestorePoint, "Fehler", Done}) {
        dialogue.machine.messages.WhileOpen(title, look);
    }
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(pointers == std::vector<int>{toolkit::DefaultPointer, toolkit::DefaultPointer,
                                       toolkit::DefaultPointer, toolkit::Hourglass,
                                       toolkit::DefaultPointer});
}

TEST_CASE("a restart request that fails is silent and still closes the program") {
    Dialogue dialogue;
    dialogue.machine.faults.FailAll("ExitSession", runtime::CannotCreateObject);
    dialogue.Answer(6, 7, 6);
    CHECK(dialogue.Apply());
    CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
}

TEST_CASE("the message of success follows a write pass that could write nothing") {
    Dialogue dialogue;
    dialogue.machine.registry.Deny(Registry::LocalMachine, "");
    dialogue.machine.registry.Deny(Registry::CurrentUser, "");
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
}

TEST_CASE("the read pass is not repeated after the write pass") {
    Dialogue dialogue;
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.machine.journal.Calls("RegQueryValueExA").empty());
}

TEST_CASE("a second press runs everything again, questions included") {
    Dialogue dialogue;
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    const std::size_t written = dialogue.machine.journal.Calls("RegSetValueExA").size();
    CHECK(written > 40);
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.machine.journal.Calls("RegSetValueExA").size() == written);
    CHECK(dialogue.Titles().size() == 6);
}

TEST_CASE("the message of success follows a write pass that raises a failure") {
    Dialogue dialogue;
    dialogs::frmPassword password(dialogue.machine.services);
    bool saved = false;
    app::Apply apply(*dialogue.form, password, dialogue.machine.services,
                     {.saveProgramOptions = [&] { saved = true; },
                      .writeRegistry = [] { throw runtime::Failure(runtime::Overflow); }});
    dialogue.Answer(6, 7, 7);
    apply.Run();
    CHECK(saved);
    CHECK(dialogue.Titles() == Strings{Confirm, RestorePoint, Done});
}

TEST_CASE("a failing option store does not keep the system from being written") {
    Dialogue dialogue;
    dialogue.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    dialogue.Answer(6, 7, 7);
    dialogue.Apply();
    CHECK(dialogue.Wrote());
}

TEST_CASE("the password dialog comes up in the middle of the window") {
    Dialogue dialogue;
    dialogue.SetAutoLogin("Geheim");
    toolkit::Bounds place;
    dialogue.machine.forms.WhenModal("frmPassword", [&](toolkit::Form& dialog) {
        place = dialog.Place();
        dialog.Hide();
    });
    dialogue.machine.messages.Answer(Confirm, 6);
    dialogue.Apply();
    const toolkit::Bounds& parent = dialogue.form->Place();
    CHECK(place.left + place.width / 2 == doctest::Approx(parent.left + parent.width / 2));
    CHECK(place.top + place.height / 2 == doctest::Approx(parent.top + parent.height / 2));
}
