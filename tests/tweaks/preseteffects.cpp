// What presets bring about at once, through the controls' own events.
#include <doctest/doctest.h>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

constexpr char BinParent[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace";

struct Effects : Presets {
    platform::OtherWindows::Handle taskbar = machine.otherWindows.Open("Shell_TrayWnd");

    int Opacity() { return machine.otherWindows.At(taskbar).alpha; }
    bool BinIsThere() { return machine.registry.HasKey(Service::LocalMachine, BinKey); }

    // What is stored and started by a press, in order.
    Lines DoingsOf(const std::string& preset) {
        machine.journal.Clear();
        Press(preset);
        Lines doings;
        for (const std::string& line : machine.journal.Lines()) {
            if (line.starts_with("SaveSetting") || line.starts_with("Start")) {
                doings.push_back(line);
            }
        }
        return doings;
    }
};

constexpr char OpacityStored[] = "SaveSetting \"Quillmore\" \"TaskBar\" \"Luminance\" \"255\"";
constexpr char IconsStored[] = "SaveSetting \"Quillmore\" \"Desktop\" \"TransparentIcons\" ";
constexpr char ComponentsStored[] = "SaveSetting \"Quillmore\" \"WinComponents\" \"Show\" ";
constexpr char SecureStored[] = "SaveSetting \"Quillmore\" \"SecureWindows\" \"Regged\" ";
constexpr char UnregisterUpnp[] = "Start \"regsvr32.exe %windir%\\system32\\upnp.dll /u /s\" 0";
constexpr char RegisterUpnp[] = "Start \"regsvr32.exe %windir%\\system32\\upnp.dll /s\" 0";

std::string With(const char* setting, const char* text) {
    return setting + ('"' + std::string(text) + '"');
}

}  // namespace

TEST_CASE("a preset whose values the controls hold already asks and does nothing") {
    for (const std::string& preset : GoldenPresets()) {
        CAPTURE(preset);
        Presets program;
        program.Press(preset);
        program.machine.journal.Clear();
        program.Press(preset);
        Lines left;
        for (const std::string& line : program.machine.journal.Lines()) {
            if (!line.starts_with("GlobalMemoryStatus") && !line.starts_with("MessageBox")) {
                left.push_back(line);
            }
        }
        CHECK(left.empty());
    }
}

TEST_CASE("no preset writes to the registry, but that two bring the recycle bin's key back") {
    for (const std::string& preset : GoldenPresets()) {
        CAPTURE(preset);
        Presets program;
        program.AllOn();
        program.machine.registry.MakeKey(Service::LocalMachine, BinParent);
        const auto before = program.machine.registry.Dump();
        program.Press(preset);
        if (preset == "cmdDefaultMisc" || preset == "cmdOptimalMisc") {
            CHECK(program.machine.registry.Value(Service::LocalMachine, BinKey, "(Standard)"));
            program.machine.registry.EraseKey(Service::LocalMachine, BinKey);
        }
        CHECK(program.machine.registry.Dump() == before);
    }
}

TEST_CASE_FIXTURE(Effects, "from all off AutoTuning takes the opacity, the icons and UPnP along") {
    AllOff();
    CHECK(DoingsOf(AutoTuningButton) ==
          Lines{OpacityStored, With(IconsStored, "1"), With(SecureStored, "true"), UnregisterUpnp});
    CHECK(Opacity() == 255);
    CHECK(DoingsOf(AutoTuningButton).empty());
}

TEST_CASE_FIXTURE(Effects, "from all on AutoTuning takes the components' file along and no more") {
    AllOn();
    machine.files.Put(SysocPath, "a,hide,7");
    CHECK(DoingsOf(AutoTuningButton) == Lines{With(ComponentsStored, "false")});
    CHECK(machine.files.Content(SysocPath) == "a,hide,7\r\n");
}

TEST_CASE_FIXTURE(Effects, "the standard of the page System moves the slider of the opacity") {
    AllOff();
    ChangeNotes changes(form);
    CHECK(DoingsOf("cmdNormal") == Lines{OpacityStored});
    CHECK(Opacity() == 255);
    const Lines tail(changes.lines.end() - 3, changes.lines.end());
    CHECK(tail == Lines{"Level = 255", "txtLevelValue = \"255\"", "chkLastAccessTimestamp = 1"});
}

TEST_CASE_FIXTURE(Effects, "the recommendation of the page System sets the box of the opacity") {
    AllOff();
    ChangeNotes changes(form);
    CHECK(DoingsOf("cmdOptimal") == Lines{OpacityStored, With(IconsStored, "1")});
    CHECK(Opacity() == 255);
    const Lines middle(changes.lines.begin() + 2, changes.lines.begin() + 4);
    CHECK(middle == Lines{"txtLevelValue = \"255\"", "Level = 255"});
}

TEST_CASE_FIXTURE(Effects, "the standard of the page System takes the icons' transparency away") {
    AllOn();
    CHECK(DoingsOf("cmdNormal") == Lines{With(IconsStored, "0")});
}

TEST_CASE_FIXTURE(Effects, "the standard of the page Sicherheit brings recycle bin and UPnP back") {
    AllOn();
    CHECK(DoingsOf("cmdDefaultMisc") == Lines{With(SecureStored, "false"), RegisterUpnp});
    CHECK(BinIsThere());
}

TEST_CASE_FIXTURE(Effects,
                  "the recommendation of the page Sicherheit brings the recycle bin back") {
    AllOn();
    CHECK_FALSE(BinIsThere());
    CHECK(DoingsOf("cmdOptimalMisc").empty());
    CHECK(BinIsThere());
}

TEST_CASE_FIXTURE(Effects, "AutoTuning leaves a removed recycle bin removed and asks for no key") {
    AllOn();
    DoingsOf(AutoTuningButton);
    CHECK(Shown("chk1RecycleBinDelete") == "1");
    CHECK_FALSE(BinIsThere());
    for (const std::string& line : machine.journal.Lines()) CHECK_FALSE(line.starts_with("Reg"));
}

TEST_CASE_FIXTURE(Effects, "AutoTuning leaves a recycle bin that is there") {
    AllOff();
    machine.registry.MakeKey(Service::LocalMachine, BinKey);
    DoingsOf(AutoTuningButton);
    CHECK(Shown("chk1RecycleBinDelete") == "0");
    CHECK(BinIsThere());
}

TEST_CASE_FIXTURE(Effects, "both presets of the page Tweaks uncheck the components at once") {
    for (const char* preset : {"cmdNormalWindows2", "cmdOptimalWindows2"}) {
        AllOn();
        CHECK(DoingsOf(preset) == Lines{With(ComponentsStored, "false")});
        CHECK(DoingsOf(preset).empty());
    }
}

TEST_CASE_FIXTURE(Effects, "the presets of the page DFÜ store and start nothing") {
    for (const char* preset : {"cmdStandardDfue", "cmdOptimalDfue", "cmdExtensionDefault"}) {
        AllOn();
        CHECK(DoingsOf(preset).empty());
    }
}
