#include "app/closing.h"

#include <doctest/doctest.h>

#include "app/program.h"
#include "toolkit/keys.h"

using namespace app_test;
using toolkit::WindowState;

namespace {

// Cancels the password dialog, which then stays loaded without being seen.
void LeavePasswordDialogHidden(Program& program) {
    program.machine.registry.Put(platform::Registry::LocalMachine,
                                 "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                                 "AutoAdminLogon", platform::simulated::TextValue("1"));
    REQUIRE(program.Start());
    program.Text("txtALPassword").SetText("geheim");
    program.machine.forms.WhenModal("frmPassword", [](toolkit::Form& form) {
        form.Find<controls::chameleonButton>("cmdCancel").Press();
    });
    program.machine.messages.Answer("Einstellungen speichern", 6);
    program.Press("cmdApply");
}

}  // namespace

TEST_CASE("after the first closing every key of the program's options exists") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.Close());
    for (const char* key :
         {"State", "Left", "Top", "Width", "Height", "ServerName", "Tab", "TrayIcon", "AutoStart",
          "MinimizeAfterStart", "RebootQuestion", "ForceReboot"}) {
        CAPTURE(key);
        CHECK(program.machine.settingsStore.Stored("Options", key).has_value());
    }
    CHECK_FALSE(program.machine.settingsStore.Stored("Options", "SyncAtom").has_value());
    CHECK_FALSE(program.machine.settingsStore.Stored("Options", "SyncServer").has_value());
}

TEST_CASE("closing stores the window's facts as number texts") {
    Program program;
    REQUIRE(program.Start());
    program.form->SetLeft(120.5f);
    program.form->SetTop(300);
    program.Text("txtSyncServer").SetText("zeit");
    program.form->Find<toolkit::TabStrip>("SSTab1").SetTab(4);
    CHECK(program.Close());
    CHECK(program.Stored("Left") == "120,5");
    CHECK(program.Stored("Top") == "300");
    CHECK(program.Stored("Width") == "9990");
    CHECK(program.Stored("Height") == "7920");
    CHECK(program.Stored("State") == "0");
    CHECK(program.Stored("ServerName") == "zeit");
    CHECK(program.Stored("Tab") == "4");
}

TEST_CASE("closing a maximised window stores its state and the place that it fills") {
    Program program;
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Maximised, {-60, -60, 15480, 11220});
    CHECK(program.Close());
    CHECK(program.Stored("State") == "2");
    CHECK(program.Stored("Left") == "-60");
    CHECK(program.Stored("Width") == "15480");
}

TEST_CASE("closing a window minimised without the tray stores its state and the place it had") {
    Program program;
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Normal, {120, 300, 9990, 7920});
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK(program.Close());
    CHECK(program.Stored("State") == "1");
    CHECK(program.Stored("Left") == "120");
    CHECK(program.Stored("Top") == "300");
    CHECK(program.Stored("Height") == "7920");
}

TEST_CASE("closing from the tray stores neither place nor server name but options and tab") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    program.form->Find<toolkit::TabStrip>("SSTab1").SetTab(7);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    REQUIRE_FALSE(program.form->InTaskbar());
    CHECK(program.Close());
    for (const char* key : {"State", "Left", "Top", "Width", "Height", "ServerName"}) {
        CHECK(program.Stored(key) == "absent");
    }
    CHECK(program.Stored("TrayIcon") == "1");
    CHECK(program.Stored("ForceReboot") == "0");
    CHECK(program.Stored("Tab") == "7");
    CHECK(program.form->Visible());
    CHECK_FALSE(program.machine.tray.shown);
}

TEST_CASE("closing stores facts, then options, then the tab, then ends the process") {
    Program program;
    REQUIRE(program.Start());
    program.machine.journal.Clear();
    CHECK(program.Close());
    const auto saved = program.machine.journal.Calls("SaveSetting");
    const char* order[] = {"Width",          "Height",      "Top",
                           "Left",           "State",       "ServerName",
                           "TrayIcon",       "AutoStart",   "MinimizeAfterStart",
                           "RebootQuestion", "ForceReboot", "Tab"};
    REQUIRE(saved.size() == std::size(order));
    for (std::size_t i = 0; i < saved.size(); ++i) {
        CHECK(saved[i].find("\"" + std::string(order[i]) + "\"") != std::string::npos);
    }
    CHECK(program.machine.journal.Lines().back().rfind("End", 0) == 0);
}

TEST_CASE("the closing button, F4 and the close box all close the program") {
    Program button;
    REQUIRE(button.Start());
    CHECK(button.Ends([&] { button.Press("cmdEnd"); }));

    Program key;
    REQUIRE(key.Start());
    CHECK(key.Ends([&] { key.form->KeyPressed(toolkit::key::F4); }));

    Program box;
    REQUIRE(box.Start());
    CHECK(box.Close());
}

TEST_CASE("other keys than F4 pass") {
    Program program;
    REQUIRE(program.Start());
    for (int key = 0; key < 256; ++key) {
        if (key != toolkit::key::F4) CHECK_FALSE(program.form->KeyPressed(key));
    }
    CHECK_FALSE(program.machine.program.ended);
}

TEST_CASE("a failing step of closing is reported and leaves the rest of closing undone") {
    Program program;
    REQUIRE(program.Start());
    program.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    program.Close();
    REQUIRE(program.machine.messages.Shown().size() == 1);
    CHECK(program.machine.messages.Shown()[0].title == "Fehler 5");
    CHECK(program.machine.messages.Shown()[0].text.find("Prozedur: Form_QueryUnload") !=
          std::string::npos);
    CHECK(program.machine.journal.Calls("AutoStartRemove").empty());
    CHECK(program.Stored("Tab") == "absent");
}

TEST_CASE("closing is never refused: the window goes even after a failing step") {
    Program program;
    REQUIRE(program.Start());
    program.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    program.Close();
    CHECK_FALSE(program.form->Loaded());
}

TEST_CASE("closing leaves no timer running and no file open") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.Close());
    CHECK(program.machine.clock.RunningTimers() == 0);
    CHECK(program.machine.files.OpenHandles() == 0);
}

TEST_CASE("closing unloads every other open form") {
    Program program;
    LeavePasswordDialogHidden(program);
    REQUIRE(program.machine.forms.OpenForms().size() == 2);
    CHECK(program.Close());
    CHECK(program.machine.forms.OpenForms().empty());
}

TEST_CASE("a closing that failed half-way still hides the tray icon and leaves no hidden dialog") {
    Program program;
    LeavePasswordDialogHidden(program);
    program.machine.tray.shown = true;
    program.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    program.Close();
    CHECK_FALSE(program.machine.tray.shown);
    CHECK(program.machine.forms.OpenForms().empty());
}

TEST_CASE("a tray icon that cannot be removed does not keep the window from closing") {
    Program program;
    REQUIRE(program.Start());
    program.machine.faults.FailAll("Tray.SetShown", runtime::InvalidProcedureCall);
    program.Close();
    CHECK_FALSE(program.form->Loaded());
}
