#include <doctest/doctest.h>

#include <memory>
#include <string>

#include "app/program.h"
#include "toolkit/drivelistbox.h"
#include "toolkit/listbox.h"

using namespace app_test;
using platform::Registry;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;
using toolkit::WindowState;

namespace {

void RefuseWarning(Program& program) {
    program.machine.forms.WhenModal("frmFirstInfo", [](toolkit::Form& form) {
        form.Find<controls::chameleonButton>("Command1").Press();
    });
}

int Tab(Program& program) {
    return program.form->Find<toolkit::TabStrip>("SSTab1").Tab();
}

// A machine on which each step of the start has an effect to be seen.
void Seed(Program& program) {
    auto& machine = program.machine;
    machine.registry.Put(Registry::LocalMachine, MemoryKey, "LargeSystemCache", DwordValue(1));
    machine.registry.Put(Registry::LocalMachine, SystemKey, "CSDVersion",
                         TextValue("Service Pack 3"));
    machine.internetCache.Add({.url = "http://a/"});
    machine.autostart.entries["Quillmore"] = "anything";
    machine.systemInformation.drives = {{"C:\\", platform::DriveKind::Fixed}};
    machine.systemFacts.SetSpace('C', {0, 1000, 400});
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    machine.settingsStore.Put("Desktop", "TransparentIcons", "1");
    machine.settingsStore.Put("VideoPrv", "Regged", "true");
    for (const char* key : {"TrayIcon", "RebootQuestion", "ForceReboot", "SyncServer"}) {
        machine.settingsStore.Put("Options", key, "1");
    }
    machine.settingsStore.Put("Options", "State", "2");
    machine.settingsStore.Put("Options", "Left", "120");
    machine.settingsStore.Put("Options", "Top", "300");
    machine.settingsStore.Put("Options", "ServerName", "zeit");
    machine.settingsStore.Put("Options", "Tab", "7");
}

// What a start on that machine has not brought about.
std::string EffectsMissing(Program& program) {
    app::frmMain& form = *program.form;
    const std::pair<const char*, bool> effects[] = {
        {"state", form.State() == WindowState::Maximised},
        {"left", form.Place().left == 120},
        {"top", form.Place().top == 300},
        {"version", form.Caption() == "Quillmore v2.38"},
        {"read pass", program.Check("chkLargeSystemCache").Value() == 1},
        {"cache", form.Find<toolkit::ListBox>("List1").Items().size() == 1},
        {"icons", program.Check("chkIcons").Value() == 1},
        {"level", program.Text("txtLevelValue").Text() == "100"},
        {"autostart", program.Check("chkCreateAutoStart").Value() == 1},
        {"tray", program.Check("chkTrayIcon").Value() == 1 && program.machine.tray.hasIcon &&
                     program.machine.tray.tip == "Quillmore"},
        {"preview", program.Check("chkSHMediaDLL").Value() == 0},
        {"question", program.Check("chkRebootQuestion").Value() == 1},
        {"force", program.Check("chkForceReboot").Value() == 1},
        {"service pack", form.Find<toolkit::Label>("lblSP").Caption() == "Service Pack 3"},
        {"help texts", program.machine.toolTips.OpenWindows() == 1},
        {"server", program.Text("txtSyncServer").Text() == "zeit"},
        {"drive", form.Find<toolkit::DriveListBox>("drvSelect").Drive().starts_with("c:")},
        {"space", form.Find<toolkit::Label>("lblGesamt").Caption() == "Gesamt: 1.000 Bytes"},
        {"clear", form.Find<controls::chameleonButton>("cmdClearIECache").Enabled()},
        {"tab", Tab(program) == 7},
        {"time source", form.Find<toolkit::OptionButton>("optSynServer").Value()},
    };
    std::string missing;
    for (const auto& [effect, there] : effects) {
        if (!there) missing += std::string(missing.empty() ? "" : ", ") + effect;
    }
    return missing;
}

constexpr char GateTitle[] = "Quillmore - Falsches Betriebssystem";

}  // namespace

TEST_CASE("a fresh store brings the warning up") {
    platform::simulated::Machine machine;
    bool asked = false;
    machine.forms.WhenModal("frmFirstInfo", [&](toolkit::Form& form) {
        asked = true;
        form.Unload();
    });
    app::frmMain form(machine.services);
    CHECK_THROWS_AS(form.Load(), platform::simulated::ProgramEnded);
    CHECK(asked);
}

TEST_CASE("a session that ends while the warning is open leaves no trace") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    const auto settings = program.machine.settingsStore.All();
    program.machine.forms.WhenModal("frmFirstInfo",
                                    [&](toolkit::Form&) { program.form->Unload(); });
    CHECK_FALSE(program.Start());
    CHECK(program.machine.settingsStore.All() == settings);
    CHECK(program.machine.journal.Calls("AutoStartRemove").empty());
}

TEST_CASE("refusing the warning at the first start leaves no trace") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    RefuseWarning(program);
    const auto settings = program.machine.settingsStore.All();
    const auto registry = program.machine.registry.Dump();

    CHECK_FALSE(program.Start());
    CHECK(program.machine.settingsStore.All() == settings);
    CHECK(program.machine.registry.Dump() == registry);
    CHECK(program.machine.journal.Calls("RegOpenKeyExA").empty());
    CHECK(program.machine.journal.Calls("SaveSetting").empty());
    CHECK(program.machine.journal.Calls("AutoStartRemove").empty());
}

TEST_CASE("closing the warning by its close box counts as refusal") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    program.machine.forms.WhenModal("frmFirstInfo", [](toolkit::Form& form) { form.Unload(); });
    CHECK_FALSE(program.Start());
    CHECK(program.Stored("Accepted") == "No");
}

TEST_CASE("accepting the warning stores it and opens the window") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "");
    program.machine.forms.WhenModal("frmFirstInfo", [](toolkit::Form& form) {
        form.Find<controls::chameleonButton>("Command2").Press();
    });
    CHECK(program.Start());
    CHECK(program.Stored("Accepted") == "Yes");
    CHECK(program.form->Visible());
}

TEST_CASE("an accepted warning is exactly the text Yes") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "yes");
    RefuseWarning(program);
    CHECK_FALSE(program.Start());
}

TEST_CASE("the warning is not shown again once accepted") {
    Program program;
    CHECK(program.Start());
    CHECK(program.machine.journal.Calls("ShowModal").empty());
}

TEST_CASE("a stored Left of -120 opens the window at 1, a stored Top of 300 at 300") {
    Program program;
    program.machine.settingsStore.Put("Options", "Left", "-120");
    program.machine.settingsStore.Put("Options", "Top", "300");
    REQUIRE(program.Start());
    CHECK(program.form->Place().left == 1);
    CHECK(program.form->Place().top == 300);
}

TEST_CASE("a stored Left and Top of 0 are no negative numbers") {
    Program program;
    program.machine.settingsStore.Put("Options", "Left", "0");
    program.machine.settingsStore.Put("Options", "Top", "0");
    REQUIRE(program.Start());
    CHECK(program.form->Place().left == 0);
    CHECK(program.form->Place().top == 0);
}

TEST_CASE("a stored negative Top opens the window at 1") {
    Program program;
    program.machine.settingsStore.Put("Options", "Top", "-1");
    REQUIRE(program.Start());
    CHECK(program.form->Place().top == 1);
}

TEST_CASE("a stored Left with a decimal comma is taken as it is") {
    Program program;
    program.machine.settingsStore.Put("Options", "Left", "120,5");
    REQUIRE(program.Start());
    CHECK(program.form->Place().left == 120.5f);
}

TEST_CASE("a settings store full of nonsense starts the program with designed values") {
    Program plain;
    REQUIRE(plain.Start());
    for (const char* nonsense : {"abc", "1e99", "--1", "9999999999", "\x01\xFF", "&HZZ", "NaN"}) {
        CAPTURE(nonsense);
        Program program;
        for (const char* key : {"State", "Left", "Top", "Tab", "TrayIcon", "RebootQuestion",
                                "ForceReboot", "MinimizeAfterStart", "SyncAtom", "SyncServer"}) {
            program.machine.settingsStore.Put("Options", key, nonsense);
        }
        program.machine.settingsStore.Put("TaskBar", "Luminance", "abc");
        program.machine.settingsStore.Put("Desktop", "TransparentIcons", nonsense);
        REQUIRE(program.Start());
        CHECK(program.form->State() == WindowState::Normal);
        CHECK(Tab(program) == 0);
        CHECK(program.Check("chkTrayIcon").Value() == 0);
        CHECK(program.Check("chkIcons").Value() == 0);
        CHECK(program.form->Find<toolkit::Slider>("Level").Value() == 255);
        CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
        CHECK(program.form->Visible());
    }
}

TEST_CASE("a stored Left, Top or State that is no number keeps the designed value") {
    Program plain;
    REQUIRE(plain.Start());
    Program program;
    for (const char* key : {"State", "Left", "Top"})
        program.machine.settingsStore.Put("Options", key, "x");
    REQUIRE(program.Start());
    CHECK(program.form->Place() == plain.form->Place());
    CHECK(program.form->State() == WindowState::Normal);
}

TEST_CASE("a stored State of 2 without MinimizeAfterStart opens maximised") {
    Program program;
    program.machine.settingsStore.Put("Options", "State", "2");
    REQUIRE(program.Start());
    CHECK(program.form->State() == WindowState::Maximised);
}

TEST_CASE("a window opened maximised snaps to 9990 by 7920 when it is restored") {
    Program program;
    program.machine.settingsStore.Put("Options", "State", "2");
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Maximised, {0, 0, 15360, 11100});
    CHECK(program.form->Place().width == 15360);
    program.form->WindowMoved(WindowState::Normal, {10, 10, 5000, 5000});
    CHECK(program.form->Place().width == 9990);
    CHECK(program.form->Place().height == 7920);
}

TEST_CASE("a stored State of 2 with MinimizeAfterStart 0 opens normal") {
    Program program;
    program.machine.settingsStore.Put("Options", "State", "2");
    program.machine.settingsStore.Put("Options", "MinimizeAfterStart", "0");
    REQUIRE(program.Start());
    CHECK(program.form->State() == WindowState::Normal);
}

TEST_CASE("a stored State that no window has is passed over") {
    for (const char* state : {"3", "-1", "32767"}) {
        Program program;
        program.machine.settingsStore.Put("Options", "State", state);
        REQUIRE(program.Start());
        CHECK(program.form->State() == WindowState::Normal);
    }
}

TEST_CASE("stored Width and Height have no effect") {
    Program program;
    program.machine.settingsStore.Put("Options", "Width", "100");
    program.machine.settingsStore.Put("Options", "Height", "100");
    REQUIRE(program.Start());
    CHECK(program.form->Place().width == 9990);
    CHECK(program.form->Place().height == 7920);
    for (const std::string& read : program.machine.journal.Calls("GetSetting")) {
        CHECK(read.find("\"Width\"") == std::string::npos);
        CHECK(read.find("\"Height\"") == std::string::npos);
    }
}

TEST_CASE("another build than 2600 brings the message and closes the window") {
    Program program;
    program.machine.operatingSystem.facts = {"Microsoft Windows 2000", 5, 0, 2195};
    CHECK_FALSE(program.Start());
    REQUIRE(program.machine.messages.Shown().size() == 1);
    CHECK(program.machine.messages.Shown()[0] ==
          platform::simulated::ShownMessage{
              GateTitle,
              "Dieses Programm ist NUR unter Windows XP (Build 2600) lauffähig!\r\n\r\n"
              "Ihr Betriebssystem: Microsoft Windows 2000 (5.0)\r\n\r\nZum beenden OK drücken",
              48});
    CHECK(program.machine.journal.Calls("RegOpenKeyExA").empty());
}

TEST_CASE("the gate looks at the build number only") {
    Program program;
    program.machine.operatingSystem.facts = {"Windows 98", 4, 10, 2600};
    CHECK(program.Start());
}

TEST_CASE("a window refused by the gate closes as every window does and stores its facts") {
    Program program;
    program.machine.operatingSystem.facts.build = 3790;
    CHECK_FALSE(program.Start());
    CHECK(program.Stored("Tab") == "0");
    CHECK(program.Stored("State") == "0");
}

TEST_CASE("a system that does not tell its build number is refused") {
    Program program;
    program.machine.faults.FailAll("GetVersionExA", runtime::CannotCreateObject);
    CHECK_FALSE(program.Start());
    CHECK(program.machine.messages.Shown().at(0).title == GateTitle);
}

TEST_CASE("-RAW passes the gate on another build, shows its notice, and the start goes on") {
    Program program;
    program.machine.operatingSystem.facts.build = 2195;
    program.machine.program.commandLine = "-RAW";
    Seed(program);
    CHECK(program.Start());
    CHECK(EffectsMissing(program) == "");
    REQUIRE(program.machine.messages.Shown().size() == 1);
    CHECK(program.machine.messages.Shown()[0] ==
          platform::simulated::ShownMessage{
              "RAW MODE",
              "Sie benutzen den 'RAW MODE'. Für Schäden sind sie selbst verantwortlich!", 48});
}

TEST_CASE("only the whole command line -RAW is the switch") {
    for (const char* line : {"-raw", "-RAW ", " -RAW", "-RAW x", "/RAW", "\"-RAW\"", ""}) {
        CAPTURE(line);
        Program program;
        program.machine.operatingSystem.facts.build = 2195;
        program.machine.program.commandLine = line;
        CHECK_FALSE(program.Start());
        CHECK(program.machine.messages.Shown().at(0).title == GateTitle);
    }
}

TEST_CASE("the caption carries the program's title and v2.38") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.form->Caption() == "Quillmore v2.38");
}

TEST_CASE("the read pass brings the system's state into the controls") {
    Program program;
    program.machine.registry.Put(Registry::LocalMachine, MemoryKey, "LargeSystemCache",
                                 DwordValue(1));
    REQUIRE(program.Start());
    CHECK(program.Check("chkLargeSystemCache").Value() == 1);
}

TEST_CASE("an installed service pack is shown") {
    Program program;
    program.machine.registry.Put(Registry::LocalMachine, SystemKey, "CSDVersion",
                                 TextValue("Service Pack 3"));
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::Label>("lblSP").Caption() == "Service Pack 3");
    CHECK(program.form->Find<toolkit::Label>("lblSP").Visible());
}

TEST_CASE("without a service pack both its labels are hidden") {
    Program program;
    REQUIRE(program.Start());
    CHECK_FALSE(program.form->Find<toolkit::Label>("lblSP").Visible());
    CHECK_FALSE(program.form->Find<toolkit::Label>("lblSPLabel").Visible());
}

TEST_CASE("the stored tab is shown") {
    Program program;
    program.machine.settingsStore.Put("Options", "Tab", "7");
    REQUIRE(program.Start());
    CHECK(Tab(program) == 7);
}

TEST_CASE("a stored tab outside 0 to 8, the spare 8, or no number opens the first page") {
    for (const char* tab : {"9", "8", "-1", "x", "", "70000"}) {
        CAPTURE(tab);
        Program program;
        program.machine.settingsStore.Put("Options", "Tab", tab);
        REQUIRE(program.Start());
        CHECK(Tab(program) == 0);
    }
}

TEST_CASE("each start comes up with the atomic clock as time source") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
    CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optSynServer").Value());
}

TEST_CASE("SyncServer set to 1 by hand selects the server at the next start") {
    Program program;
    program.machine.settingsStore.Put("Options", "SyncServer", "1");
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::OptionButton>("optSynServer").Value());
    CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
}

TEST_CASE("where both time sources are set to 1 by hand, the server wins, being read last") {
    Program program;
    program.machine.settingsStore.Put("Options", "SyncAtom", "1");
    program.machine.settingsStore.Put("Options", "SyncServer", "1");
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::OptionButton>("optSynServer").Value());
    CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
}

TEST_CASE("a SyncAtom that is not 1 leaves no time source selected") {
    for (const char* stored : {"0", "", "2", "True", " 1"}) {
        CAPTURE(stored);
        Program program;
        program.machine.settingsStore.Put("Options", "SyncAtom", stored);
        REQUIRE(program.Start());
        CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optSynServer").Value());
        CHECK_FALSE(program.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
    }
}

TEST_CASE("the server's name comes back") {
    Program program;
    program.machine.settingsStore.Put("Options", "ServerName", "zeit-ü");
    REQUIRE(program.Start());
    CHECK(program.Text("txtSyncServer").Text() == "zeit-ü");
}

TEST_CASE("failing any single call of start-up costs its own step, and nothing is reported") {
    Program count;
    Seed(count);
    REQUIRE(count.Start());
    REQUIRE(EffectsMissing(count) == "");
    const auto calls = static_cast<int>(count.machine.journal.Count());
    // Whether the warning was accepted is a question of its own.
    constexpr int AcceptedCall = 2;
    for (int n = 1; n <= calls; ++n) {
        if (n == AcceptedCall) continue;
        CAPTURE(n);
        Program program;
        Seed(program);
        program.machine.faults.FailNth(n, runtime::PermissionDenied);
        const bool started = program.Start();
        // The one call that decides whether to go on is the question for the build number.
        if (!started) {
            REQUIRE(program.machine.messages.Shown().size() == 1);
            CHECK(program.machine.messages.Shown()[0].title == GateTitle);
        } else {
            CHECK(program.machine.messages.Shown().empty());
            CHECK(program.form->Visible());
            const std::string missing = EffectsMissing(program);
            CAPTURE(missing);
            // What is not listed cannot be cleared, and no drive has no size.
            const bool follows = missing == "cache, clear" || missing == "drive, space";
            CHECK((follows || missing.find(',') == std::string::npos));
        }
    }
}

TEST_CASE("a session that ends behind a message of start-up closes as ever, with designed boxes") {
    Program program;
    program.machine.registry.Put(Registry::CurrentUser, "Control Panel\\Desktop", "MenuShowDelay",
                                 TextValue("3000000000"));
    program.machine.settingsStore.Put("Options", "ForceReboot", "1");
    program.machine.messages.WhileOpen("Fehler 6", [&] { program.form->Unload(); });
    CHECK_FALSE(program.Start());
    CHECK(program.Stored("ForceReboot") == "0");
    CHECK(program.Stored("Tab") == "0");
}

TEST_CASE("drive and deletion are ready before the stored tab is shown, the time source is not") {
    Program program;
    Seed(program);
    program.form = std::make_unique<app::frmMain>(program.machine.services);
    std::string missing;
    program.form->Find<toolkit::TabStrip>("SSTab1").onClick = [&] {
        missing = EffectsMissing(program);
    };
    program.form->Load();
    CHECK(missing == "time source");
}

TEST_CASE("ReadRegistry reports nothing on a machine on which no value exists") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.machine.messages.Shown().empty());
    CHECK_FALSE(program.machine.files.Content(LogPath).has_value());
    CHECK(program.form->Pointer() == toolkit::DefaultPointer);
}

TEST_CASE("a read pass that fails is logged as ReadRegistry, and start-up goes on") {
    Program program;
    program.machine.registry.Put(Registry::CurrentUser, "Control Panel\\Desktop", "MenuShowDelay",
                                 TextValue("3000000000"));
    program.machine.settingsStore.Put("Options", "Tab", "7");
    REQUIRE(program.Start());
    REQUIRE(program.machine.messages.Shown().size() == 1);
    CHECK(program.machine.messages.Shown()[0].title == "Fehler 6");
    CHECK(program.machine.messages.Shown()[0].text ==
          "Überlauf\r\n\r\nQuelle: Quillmore\r\nProzedur: ReadRegistry");
    CHECK(program.machine.files.Content(LogPath)->find("Procedure: ReadRegistry") !=
          std::string::npos);
    CHECK(program.Text("txtOSVersion").Text().empty());
    CHECK(program.form->Pointer() == toolkit::Hourglass);
    CHECK(Tab(program) == 7);
    CHECK(program.form->Visible());
}

TEST_CASE("the steps of start-up stand in their order") {
    const char* order[] = {"\"Accepted\"",
                           "\"State\"",
                           "\"Left\"",
                           "\"Top\"",
                           "GetVersionExA",
                           "DisablePagingExecutive",
                           "\"EnableVia4x\"",
                           "FindFirstUrlCacheEntryA",
                           "\"TransparentIcons\"",
                           "\"Luminance\"",
                           "AutoStartExists",
                           "\"TrayIcon\"",
                           "\"MinimizeAfterStart\"",
                           "\"RebootQuestion\"",
                           "\"ForceReboot\"",
                           "CSDVersion",
                           "\"ServerName\"",
                           "\"Tab\"",
                           "\"SyncAtom\"",
                           "\"SyncServer\""};
    Program seeded;
    seeded.machine.registry.MakeKey(Registry::LocalMachine, MemoryKey);
    seeded.machine.registry.MakeKey(Registry::LocalMachine, SystemKey);
    seeded.machine.registry.MakeKey(Registry::LocalMachine,
                                    "SYSTEM\\CurrentControlSet\\Services\\nv4\\Device0");
    REQUIRE(seeded.Start());
    std::size_t from = 0;
    const auto& lines = seeded.machine.journal.Lines();
    for (const char* step : order) {
        CAPTURE(step);
        while (from < lines.size() && lines[from].find(step) == std::string::npos) ++from;
        CHECK(from < lines.size());
    }
}

TEST_CASE("the warning comes up in the middle of the designed window") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    toolkit::Bounds place;
    program.machine.forms.WhenModal("frmFirstInfo", [&](toolkit::Form& form) {
        place = form.Place();
        form.Unload();
    });
    CHECK_FALSE(program.Start());
    const toolkit::Bounds& parent = program.form->Place();
    CHECK(place.left + place.width / 2 == doctest::Approx(parent.left + parent.width / 2));
    CHECK(place.top + place.height / 2 == doctest::Approx(parent.top + parent.height / 2));
}
