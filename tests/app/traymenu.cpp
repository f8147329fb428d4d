#include "app/traymenu.h"

#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using toolkit::WindowState;
using Requests = std::vector<platform::simulated::Session::Request>;

namespace {

// The program in the tray.
struct InTray : Program {
    InTray() {
        REQUIRE(Start());
        Check("chkTrayIcon").SetValue(1);
        form->WindowMoved(WindowState::Minimised, form->Place());
        REQUIRE(machine.tray.shown);
        machine.journal.Clear();
    }
    void RightClick() { machine.tray.onMouseUp(2); }
    bool Choose(const char* caption) {
        machine.menus.Pick(caption);
        return Ends([&] { RightClick(); });
    }
};

}  // namespace

TEST_CASE_FIXTURE(InTray, "the tray menu has its items and separators in their order") {
    machine.menus.Dismiss();
    RightClick();
    CHECK(machine.journal.Lines() ==
          std::vector<std::string>{
              "TrackPopupMenu mnuPopUpTray \"Quillmore\" - \"Workstation sperren\" - "
              "\"Benutzer abmelden\" \"Computer neu starten\" \"Computer ausschalten\" - "
              "\"Beenden\" -> nothing"});
    CHECK_FALSE(form->Visible());
    CHECK(machine.tray.shown);
}

TEST_CASE("items and separators of the tray menu are known by their names") {
    const toolkit::PopupMenu menu = app::MakeTrayMenu({});
    std::string names;
    for (const auto& item : menu.items) names += item.name + (item.IsSeparator() ? "- " : " ");
    CHECK(names == "mnuShow t1- mnuLockStation t3- mnuLogoff mnuReboot mnuShutdown t2- mnuEnd ");
}

TEST_CASE_FIXTURE(InTray, "only the right button opens the tray menu") {
    for (int button : {0, 1, 3, 4}) machine.tray.onMouseUp(button);
    CHECK(machine.journal.Count() == 0);
    machine.menus.Dismiss();
    RightClick();
    CHECK(machine.journal.Calls("TrackPopupMenu").size() == 1);
}

TEST_CASE_FIXTURE(InTray, "the menu's first item brings the window back like a double click") {
    CHECK_FALSE(Choose("Quillmore"));
    CHECK(form->State() == WindowState::Normal);
    CHECK(form->Visible());
    CHECK(form->InTaskbar());
    CHECK_FALSE(machine.tray.shown);
}

TEST_CASE_FIXTURE(InTray,
                  "the menu's last item closes the program, without place and server name") {
    Text("txtSyncServer").SetText("zeit");
    CHECK(Choose("Beenden"));
    CHECK(machine.session.requests.empty());
    CHECK(Stored("State") == "absent");
    CHECK(Stored("ServerName") == "absent");
    CHECK(Stored("TrayIcon") == "1");
    CHECK(Stored("Tab") == "0");
    CHECK_FALSE(machine.tray.shown);
}

TEST_CASE("the ends of the session are told apart in the tray menu") {
    const std::pair<const char*, std::int32_t> items[] = {
        {"Benutzer abmelden", 4}, {"Computer neu starten", 2}, {"Computer ausschalten", 8}};
    for (const auto& [caption, action] : items) {
        CAPTURE(caption);
        InTray program;
        program.Check("chkRebootQuestion").SetValue(1);
        CHECK(program.Choose(caption));
        CHECK(program.machine.session.requests == Requests{{action, 0}});
    }
}

TEST_CASE_FIXTURE(InTray,
                  "the workstation is locked by the system's own call, without a question") {
    const platform::simulated::Shell::Executed lock{
        "Open", "rundll32.exe", "user32.dll,LockWorkStation", "C:\\WINDOWS\\System32", 1};
    CHECK_FALSE(Choose("Workstation sperren"));
    CHECK(machine.shell.executed == std::vector{lock});
    Press("cmdLockWS");
    CHECK(machine.shell.executed == std::vector{lock, lock});
    CHECK(machine.messages.Shown().empty());
    CHECK(machine.session.requests.empty());
}

TEST_CASE_FIXTURE(InTray, "a forced restart from the tray menu asks nothing") {
    Check("chkRebootQuestion").SetValue(1);
    Check("chkForceReboot").SetValue(1);
    CHECK(Choose("Computer neu starten"));
    CHECK(machine.messages.Shown().empty());
    CHECK(machine.session.requests == Requests{{2, 1}});
}

TEST_CASE_FIXTURE(InTray, "the menu switches off, its question shuts down, and No leaves it so") {
    machine.messages.Answer("Computer herunterfahren", 7);
    CHECK_FALSE(Choose("Computer ausschalten"));
    CHECK(machine.session.requests.empty());
    CHECK(machine.tray.shown);
    CHECK_FALSE(form->Visible());
}

TEST_CASE_FIXTURE(InTray, "the tray menu is offered while a question is open") {
    machine.messages.WhileOpen("Benutzer abmelden", [&] {
        machine.menus.Dismiss();
        RightClick();
    });
    machine.messages.Answer("Benutzer abmelden", 7);
    CHECK_FALSE(Choose("Benutzer abmelden"));
    CHECK(machine.journal.Calls("TrackPopupMenu").size() == 2);
}
