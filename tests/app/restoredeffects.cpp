#include <doctest/doctest.h>

#include "app/program.h"
#include "toolkit/combobox.h"

// Settings that come back at start-up act as a click does, so each start repeats them.

using namespace app_test;

namespace {

constexpr char SysocPath[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

struct Start : Program {
    platform::OtherWindows::Handle taskbar = machine.otherWindows.Open("Shell_TrayWnd");

    int Alpha() { return machine.otherWindows.At(taskbar).alpha; }
    std::string Setting(const char* section, const char* key) {
        return machine.settingsStore.Stored(section, key).value_or("absent");
    }
};

}  // namespace

TEST_CASE_FIXTURE(Start, "a stored level is applied to the taskbar and stored again") {
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    REQUIRE(Program::Start());
    CHECK(Alpha() == 100);
    CHECK(machine.journal.Calls("SaveSetting") ==
          std::vector<std::string>{"SaveSetting \"Quillmore\" \"TaskBar\" \"Luminance\" \"100\""});
}

TEST_CASE_FIXTURE(Start, "a stored level of 255 asks nothing of the shell") {
    machine.settingsStore.Put("TaskBar", "Luminance", "255");
    REQUIRE(Program::Start());
    CHECK(machine.journal.Calls("FindWindowA").empty());
}

TEST_CASE_FIXTURE(Start, "closing leaves the taskbar and the icons as they were made") {
    const auto desktop = machine.otherWindows.Open("Progman", "Program Manager");
    const auto view = machine.otherWindows.Open("SHELLDLL_DefView", "", desktop);
    const auto icons = machine.otherWindows.Open("SysListView32", "", view);
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    machine.settingsStore.Put("Desktop", "TransparentIcons", "1");
    REQUIRE(Program::Start());
    machine.journal.Clear();
    CHECK(Close());
    CHECK(Alpha() == 100);
    CHECK(machine.otherWindows.At(icons).textBackground == 0xFFFFFFFF);
    for (const char* call :
         {"FindWindow", "SetWindowLongA", "SetLayered", "SetWindowPos", "InvalidateRect"}) {
        CAPTURE(call);
        CHECK(machine.journal.Calls(call).empty());
    }
    CHECK(Setting("TaskBar", "Luminance") == "100");
    CHECK(Setting("Desktop", "TransparentIcons") == "1");
}

TEST_CASE_FIXTURE(Start, "the opacity is asked of no other section and of no command line") {
    machine.settingsStore.Put("Settings", "TransparencyLevel", "77");
    machine.settingsStore.Put("Settings", "DesktopTransparent", "1");
    machine.program.commandLine = "/silent /TransLevel:77 /transicons:1";
    REQUIRE(Program::Start());
    CHECK(Alpha() == 255);
    CHECK(Text("txtLevelValue").Text() == "255");
    CHECK(Check("chkIcons").Value() == 0);
    CHECK(Close());
    for (const std::string& line : machine.journal.Lines()) {
        CHECK(line.find("\"Settings\"") == std::string::npos);
        CHECK(line.find("ransLevel") == std::string::npos);
    }
    CHECK(Setting("Settings", "TransparencyLevel") == "77");
    CHECK(Setting("Settings", "DesktopTransparent") == "1");
}

TEST_CASE_FIXTURE(Start, "a start without settings touches neither shell nor files nor processes") {
    REQUIRE(Program::Start());
    CHECK(machine.journal.Calls("FindWindowA").empty());
    CHECK(machine.journal.Calls("ReadFile").empty());
    CHECK(machine.processes.launched.empty());
    CHECK(machine.journal.Calls("SaveSetting").empty());
}

TEST_CASE_FIXTURE(Start, "a stored level that is no number stays in the box and does nothing") {
    machine.settingsStore.Put("TaskBar", "Luminance", "hell");
    REQUIRE(Program::Start());
    CHECK(Text("txtLevelValue").Text() == "hell");
    CHECK(Alpha() == 255);
}

TEST_CASE_FIXTURE(Start, "a stored level outside the slider's range does nothing either") {
    machine.settingsStore.Put("TaskBar", "Luminance", "30");
    REQUIRE(Program::Start());
    CHECK(Text("txtLevelValue").Text() == "30");
    CHECK(machine.journal.Calls("FindWindowA").empty());
    CHECK(Setting("TaskBar", "Luminance") == "30");
}

TEST_CASE_FIXTURE(Start, "a stored level beyond 32 bits is passed over, and the start goes on") {
    machine.settingsStore.Put("TaskBar", "Luminance", "99999999999");
    machine.settingsStore.Put("Options", "ForceReboot", "1");
    REQUIRE(Program::Start());
    CHECK(Alpha() == 255);
    CHECK(Check("chkForceReboot").Value() == 1);
}

TEST_CASE_FIXTURE(Start, "a stored 1 makes the icons transparent again, a stored 0 does nothing") {
    machine.settingsStore.Put("Desktop", "TransparentIcons", "1");
    const auto list = machine.otherWindows.Open(
        "SysListView32", "",
        machine.otherWindows.Open("SHELLDLL_DefView", "",
                                  machine.otherWindows.Open("Progman", "Program Manager")));
    REQUIRE(Program::Start());
    CHECK(machine.otherWindows.At(list).textBackground == 0xFFFFFFFF);

    Program other;
    other.machine.settingsStore.Put("Desktop", "TransparentIcons", "0");
    REQUIRE(other.Start());
    CHECK(other.machine.journal.Calls("FindWindowA").empty());
}

TEST_CASE_FIXTURE(Start, "a stored true in any case rewrites the components' file at each start") {
    machine.settingsStore.Put("WinComponents", "Show", "True");
    machine.files.Put(SysocPath, "a,hide\r\n");
    REQUIRE(Program::Start());
    CHECK(Check("chkHideWinComponents").Value() == 1);
    CHECK(machine.files.Content(SysocPath) == "a,\r\n");
    CHECK(Setting("WinComponents", "Show") == "true");
}

TEST_CASE_FIXTURE(Start, "a stored false leaves the components' file alone") {
    machine.settingsStore.Put("WinComponents", "Show", "false");
    machine.files.Put(SysocPath, "a,hide\r\n");
    REQUIRE(Program::Start());
    CHECK(Check("chkHideWinComponents").Value() == 0);
    CHECK(machine.files.Content(SysocPath) == "a,hide\r\n");
}

TEST_CASE_FIXTURE(Start,
                  "a components' file that cannot be rewritten is passed over by the start") {
    machine.settingsStore.Put("WinComponents", "Show", "true");
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    REQUIRE(Program::Start());
    CHECK(Check("chkHideWinComponents").Value() == 1);
    CHECK(Alpha() == 100);
    CHECK(machine.messages.Shown().empty());
    CHECK_FALSE(machine.files.Content(LogPath));
}

TEST_CASE_FIXTURE(Start, "a stored true for the UPnP service starts its process at each start") {
    machine.settingsStore.Put("SecureWindows", "Regged", "TRUE");
    REQUIRE(Program::Start());
    CHECK(Check("chkSecureWindows").Value() == 1);
    REQUIRE(machine.processes.launched.size() == 1);
    CHECK(machine.processes.launched[0].commandLine ==
          "regsvr32.exe %windir%\\system32\\upnp.dll /u /s");
    CHECK(Setting("SecureWindows", "Regged") == "true");
}

TEST_CASE_FIXTURE(Start, "a stored false or nonsense for the UPnP service starts nothing") {
    for (const char* stored : {"false", "1", "wahr"}) {
        CAPTURE(stored);
        Program other;
        other.machine.settingsStore.Put("SecureWindows", "Regged", stored);
        REQUIRE(other.Start());
        CHECK(other.Check("chkSecureWindows").Value() == 0);
        CHECK(other.machine.processes.launched.empty());
    }
}

TEST_CASE_FIXTURE(Start, "the effects come back in their order: file, icons, level, process") {
    machine.settingsStore.Put("SecureWindows", "Regged", "true");
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    machine.settingsStore.Put("Desktop", "TransparentIcons", "1");
    machine.settingsStore.Put("WinComponents", "Show", "true");
    machine.files.Put(SysocPath, "hide\r\n");
    REQUIRE(Program::Start());
    const auto saves = machine.journal.Calls("SaveSetting");
    REQUIRE(saves.size() == 4);
    CHECK(saves[0].find("\"Show\"") != std::string::npos);
    CHECK(saves[1].find("\"TransparentIcons\"") != std::string::npos);
    CHECK(saves[2].find("\"Luminance\"") != std::string::npos);
    CHECK(saves[3].find("\"Regged\"") != std::string::npos);
}

TEST_CASE_FIXTURE(Start, "a packet size typed into the open program sets the receive window") {
    REQUIRE(Program::Start());
    form->Find<toolkit::ComboBox>("cboMTU").SetText("1500");
    CHECK(Text("txtRWIN").Text() == "5840");
}

TEST_CASE_FIXTURE(Start,
                  "each control that acts at once or filters its keys does so in the window") {
    REQUIRE(Program::Start());
    for (const char* name : {"chkHideWinComponents", "chkSecureWindows", "chk1RecycleBinDelete",
                             "chkCleanUserTempFolder", "chkScanAll", "chkIcons"}) {
        CAPTURE(name);
        CHECK(form->Find<toolkit::CheckBox>(name).onClick);
    }
    const auto& packet = form->Find<toolkit::ComboBox>("cboMTU");
    CHECK(packet.onChange);
    CHECK(packet.onClick);
    for (const char* name : {"cboMTU", "cboHTTP10", "cboHTTP11"}) {
        CAPTURE(name);
        CHECK(form->Find<toolkit::ComboBox>(name).onKeyPress);
    }
    for (const char* name : {"txtRWIN", "txtTTL", "txtTimeOut", "txtLevelValue", "txtStartmenu"}) {
        CAPTURE(name);
        CHECK(form->Find<toolkit::TextBox>(name).onKeyPress);
    }
}
