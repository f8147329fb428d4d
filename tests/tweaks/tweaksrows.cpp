// The oddities of the page Tweaks, each by its name.
#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

constexpr std::string_view TourKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Tour";
constexpr std::string_view MetricsKey = "Control Panel\\Desktop\\WindowMetrics";
constexpr std::string_view PreviewKey =
    "SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers\\ShellImagePreview";
constexpr std::string_view VideoKey = "SystemFileAssociations\\.avi\\shellex\\PropertyHandler";
constexpr std::string_view EncodingKey = "SOFTWARE\\Microsoft\\MediaPlayer\\Settings\\MP3Encoding";
constexpr std::string_view RestoreServiceKey = "SYSTEM\\CurrentControlSet\\Services\\sr";

using Launched = platform::simulated::Processes::Launched;

struct Tweaks : Options {
    void Set(const char* name, int state) { form.Check(name).SetValue(state); }
    auto OfClasses(std::string_view key, std::string_view value) const {
        return machine.registry.Value(Service::ClassesRoot, key, value);
    }
    std::string Regged() const {
        return machine.settingsStore.Stored("VideoPrv", "Regged").value_or("absent");
    }
    // How often a value was asked for: RegValuePresent asks once, RegReadValue twice.
    int Questions(const std::string& value) const {
        int count = 0;
        for (const std::string& line : machine.journal.Calls("RegQueryValueExA")) {
            count += line.find('"' + value + '"') != std::string::npos ? 1 : 0;
        }
        return count;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Tweaks, "a window animation of 0 reads as off and is written back as 0") {
    PutUser(MetricsKey, "MinAnimate", TextValue("0"));
    Set("chkWinAnimate", 1);
    passes.Read();
    CHECK(State("chkWinAnimate") == 0);
    passes.Write();
    CHECK(OfUser(MetricsKey, "MinAnimate") == BareTextValue("0"));
}

TEST_CASE_FIXTURE(Tweaks, "the text of a guarded option is read only when its value is present") {
    machine.registry.MakeKey(Service::CurrentUser, MetricsKey);
    passes.Read();
    CHECK(Questions("MinAnimate") == 1);
    PutUser(MetricsKey, "MinAnimate", TextValue("1"));
    machine.journal.Clear();
    passes.Read();
    CHECK(Questions("MinAnimate") == 3);
    CHECK(State("chkWinAnimate") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "a guarded option compares texts, so that 01 is not 1") {
    PutUser(MetricsKey, "MinAnimate", TextValue("01"));
    passes.Read();
    CHECK(State("chkWinAnimate") == 0);
}

TEST_CASE_FIXTURE(Tweaks, "a search assistant of No reads as off, of no as on") {
    constexpr std::string_view key =
        "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CabinetState";
    PutUser(key, "Use Search Asst", TextValue("No"));
    passes.Read();
    CHECK(State("chkOldSearchAssistent") == 0);
    PutUser(key, "Use Search Asst", TextValue("no"));
    passes.Read();
    CHECK(State("chkOldSearchAssistent") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "a speaker of Yes reads as off") {
    PutUser("Control Panel\\Sound", "ExtendedSounds", TextValue("Yes"));
    Set("chkSystemSpeaker", 1);
    passes.Read();
    CHECK(State("chkSystemSpeaker") == 0);
}

TEST_CASE_FIXTURE(Tweaks, "a cascade of Yes reads as on, whatever its case, and is written YES") {
    for (const char* text : {"YES", "Yes", "yes"}) {
        PutUser(AdvancedKey, "CascadeControlPanel", TextValue(text));
        Set("chkCascadeExplorer", 0);
        passes.Read();
        CHECK(State("chkCascadeExplorer") == 1);
    }
    passes.Write();
    CHECK(OfUser(AdvancedKey, "CascadeControlPanel") == BareTextValue("YES"));
}

TEST_CASE_FIXTURE(Tweaks, "a timeout that is no number stays as it was, without a message") {
    PutUser(DesktopKey, "HungAppTimeout", TextValue("5000"));
    FillNumbers();
    for (const char* text : {"", "abc", "1x", "-"}) {
        CAPTURE(text);
        form.Box("txtTimeOut").SetText(text);
        passes.Write();
        CHECK(OfUser(DesktopKey, "HungAppTimeout") == TextValue("5000"));
    }
    CHECK(machine.messages.Shown().empty());
    CHECK(form.Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Tweaks, "a timeout that is a number is written as the text it is") {
    for (const char* text : {"007", " 5 ", "1e3", "-1,5"}) {
        CAPTURE(text);
        form.Box("txtTimeOut").SetText(text);
        passes.Write();
        CHECK(OfUser(DesktopKey, "HungAppTimeout") == BareTextValue(text));
    }
}

TEST_CASE_FIXTURE(Tweaks, "the encryption menu once set reads as on for ever") {
    Set("chkEncryptionContext", 1);
    passes.Write();
    CHECK(OfMachine(AdvancedKey, "EncryptionContextMenu") == DwordValue(1));
    Set("chkEncryptionContext", 0);
    PutUser(AdvancedKey, "EncryptionContextMenu", DwordValue(1));
    passes.Write();
    CHECK_FALSE(OfUser(AdvancedKey, "EncryptionContextMenu"));
    CHECK(OfMachine(AdvancedKey, "EncryptionContextMenu") == DwordValue(1));
    passes.Read();
    CHECK(State("chkEncryptionContext") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "a user's own encryption menu is not looked at") {
    PutUser(AdvancedKey, "EncryptionContextMenu", DwordValue(1));
    passes.Read();
    CHECK(State("chkEncryptionContext") == 0);
}

TEST_CASE_FIXTURE(Tweaks, "the CD autostart deletes the whole key of the machine's policies") {
    PutMachine(PoliciesKey, "NoDriveTypeAutoRun", DwordValue(185));
    PutMachine(PoliciesKey, "Fremd", DwordValue(1));
    Set("chkCDAutoPlay", 1);
    passes.Write();
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, PoliciesKey));
}

TEST_CASE_FIXTURE(Tweaks, "a policies key with sub-keys stays, and the CD autostart reads off") {
    PutMachine(PoliciesKey, "NoDriveTypeAutoRun", DwordValue(185));
    machine.registry.MakeKey(Service::LocalMachine, std::string(PoliciesKey) + "\\Run");
    Set("chkCDAutoPlay", 1);
    passes.Write();
    CHECK(OfMachine(PoliciesKey, "NoDriveTypeAutoRun") == DwordValue(185));
    passes.Read();
    CHECK(State("chkCDAutoPlay") == 0);
}

TEST_CASE_FIXTURE(Tweaks, "an absent drive mask reads as CD autostart, and its key is deleted") {
    PutMachine(PoliciesKey, "Fremd", DwordValue(1));
    passes.Read();
    CHECK(State("chkCDAutoPlay") == 1);
    passes.Write();
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, PoliciesKey));
}

TEST_CASE_FIXTURE(Tweaks, "the CD autostart of the machine is told by presence, also of a 0") {
    PutMachine(PoliciesKey, "NoDriveTypeAutoRun", DwordValue(0));
    passes.Read();
    CHECK(State("chkCDAutoPlay") == 0);
    passes.Write();
    CHECK(OfMachine(PoliciesKey, "NoDriveTypeAutoRun") == DwordValue(0xB9));
}

TEST_CASE_FIXTURE(Tweaks, "the image viewer's read does not see what its write stores") {
    Set("chkImagePreview", 1);
    passes.Write();
    CHECK(OfClasses(PreviewKey, "") == BareTextValue("{e84fda7c-1d6a-45f6-b725-cb260c236066}"));
    CHECK_FALSE(OfClasses(PreviewKey, "(Standard)"));
    passes.Read();
    CHECK(State("chkImagePreview") == 0);
    // And so the next Apply takes the viewer away.
    passes.Write();
    CHECK_FALSE(machine.registry.HasKey(Service::ClassesRoot, PreviewKey));
}

TEST_CASE_FIXTURE(Tweaks, "the image viewer reads as on by a value of the name (Standard)") {
    machine.registry.Put(Service::ClassesRoot, PreviewKey, "(Standard)", TextValue(""));
    passes.Read();
    CHECK(State("chkImagePreview") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "the shortcut arrow is gone where its value is absent") {
    passes.Read();
    CHECK(State("chkShortCutInk") == 1);
    Set("chkShortCutInk", 0);
    passes.Write();
    CHECK(OfClasses("lnkfile", "IsShortcut") == BareTextValue(""));
    Set("chkShortCutInk", 1);
    passes.Write();
    CHECK_FALSE(OfClasses("lnkfile", "IsShortcut"));
    CHECK(machine.registry.HasKey(Service::ClassesRoot, "lnkfile"));
}

TEST_CASE_FIXTURE(Tweaks, "the restore service's start type is rewritten unread in every pass") {
    for (std::uint32_t found : {0u, 2u, 4u}) {
        for (int state : {1, 0}) {
            CAPTURE(found);
            PutMachine(RestoreServiceKey, "Start", DwordValue(found));
            Set("chkSystemRestore", state);
            passes.Write();
            CHECK(OfMachine(RestoreServiceKey, "Start") == DwordValue(state == 1 ? 0 : 4));
        }
    }
    machine.journal.Clear();
    passes.Read();
    CHECK(machine.journal.Text().find("\"Start\"") == std::string::npos);
}

TEST_CASE_FIXTURE(Tweaks, "the disk space check deletes its value only where it is present") {
    machine.registry.MakeKey(Service::CurrentUser, PoliciesKey);
    Set("chkNoSpaceCheck", 1);
    passes.Write();
    const auto deletions = [&] {
        std::string found;
        for (const std::string& line : machine.journal.Calls("RegDeleteValueA")) {
            if (line.find("NoLowDiskSpaceChecks") != std::string::npos) found += line;
        }
        return found;
    };
    CHECK(deletions() == "");
    PutUser(PoliciesKey, "NoLowDiskSpaceChecks", DwordValue(0));
    passes.Write();
    CHECK(deletions() != "");
    CHECK_FALSE(OfUser(PoliciesKey, "NoLowDiskSpaceChecks"));
}

TEST_CASE_FIXTURE(Tweaks, "the MP3 rates are written in order under the key with a backslash") {
    Set("chkMP3BitRate", 1);
    passes.Write();
    std::string opened;
    std::vector<std::string> names;
    for (const std::string& line : machine.journal.Lines()) {
        if (line.starts_with("RegOpenKeyExA")) opened = line;
        if (!line.starts_with("RegSetValueExA")) continue;
        if (opened.find("MP3Encoding\\\"") == std::string::npos) continue;
        names.push_back(line.substr(line.find('"')));
    }
    CHECK(names == std::vector<std::string>{"\"LowRate\" type 4 size 4 data 56000 -> 0",
                                            "\"MediumRate\" type 4 size 4 data 128000 -> 0",
                                            "\"MediumHighRate\" type 4 size 4 data 256000 -> 0",
                                            "\"HighRate\" type 4 size 4 data 320000 -> 0"});
    CHECK(OfMachine(EncodingKey, "HighRate") == DwordValue(320000));
}

TEST_CASE_FIXTURE(Tweaks, "the MP3 rates are read without the backslash and deleted with it") {
    PutMachine(EncodingKey, "LowRate", TextValue("x"));
    passes.Read();
    CHECK(State("chkMP3BitRate") == 1);
    CHECK(machine.journal.Text().find("MP3Encoding\" 0x3F -> 0") != std::string::npos);
    CHECK(machine.journal.Text().find("MP3Encoding\\\"") == std::string::npos);
    Set("chkMP3BitRate", 0);
    passes.Write();
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, EncodingKey));
}

TEST_CASE_FIXTURE(Tweaks, "ending all tasks turns a stored text into a number") {
    PutUser(DesktopKey, "AutoEndTasks", TextValue("1"));
    passes.Read();
    CHECK(State("chkAutoEndTasks") == 1);
    passes.Write();
    CHECK(OfUser(DesktopKey, "AutoEndTasks") == DwordValue(1));
}

TEST_CASE_FIXTURE(Tweaks, "administration tools of NO read as on and are written YES") {
    PutUser(AdvancedKey, "StartMenuAdminTools", TextValue("NO"));
    passes.Read();
    CHECK(State("chkShowAdminToolsInStartMenue") == 1);
    passes.Write();
    CHECK(OfUser(AdvancedKey, "StartMenuAdminTools") == BareTextValue("YES"));
}

TEST_CASE_FIXTURE(Tweaks, "a tour count of 0 reads as on; 1, 3, no number and an absent one off") {
    PutMachine(TourKey, "RunCount", DwordValue(0));
    passes.Read();
    CHECK(State("chkWindowsTour") == 1);
    for (const StoredValue& value : {DwordValue(1), DwordValue(3), TextValue("viel")}) {
        PutMachine(TourKey, "RunCount", value);
        Set("chkWindowsTour", 1);
        passes.Read();
        CHECK(State("chkWindowsTour") == 0);
    }
    machine.registry.EraseKey(Service::LocalMachine, TourKey);
    Set("chkWindowsTour", 1);
    passes.Read();
    CHECK(State("chkWindowsTour") == 0);
}

TEST_CASE_FIXTURE(Tweaks, "a tour count below 0 reads as on") {
    PutMachine(TourKey, "RunCount", DwordValue(0xFFFFFFFF));
    passes.Read();
    CHECK(State("chkWindowsTour") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "the Windows tour writes the script debugger's value too") {
    Set("chkWindowsTour", 1);
    passes.Write();
    CHECK(OfMachine(TourKey, "RunCount") == DwordValue(0));
    CHECK(OfUser(IEKey, "Disable Script Debugger") == BareTextValue("yes"));
    Set("chkWindowsTour", 0);
    passes.Write();
    CHECK(OfMachine(TourKey, "RunCount") == DwordValue(3));
    CHECK(OfUser(IEKey, "Disable Script Debugger") == BareTextValue("no"));
}

TEST_CASE_FIXTURE(Tweaks, "an icon cache of any size reads as on and becomes a number") {
    constexpr std::string_view key = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer";
    PutMachine(key, "Max Cached Icons", TextValue("2000"));
    passes.Read();
    CHECK(State("chkIconCache") == 1);
    passes.Write();
    CHECK(OfMachine(key, "Max Cached Icons") == DwordValue(1024));
}

TEST_CASE_FIXTURE(Tweaks, "Nero's key is made also where Nero is not installed") {
    passes.Write();
    CHECK(OfUser("Software\\Ahead\\Nero - Burning Rom\\Recorder", "ShowSingleRecorderSpeed") ==
          DwordValue(0));
}

TEST_CASE_FIXTURE(Tweaks, "the preview being off deletes its handler and unregisters the library") {
    machine.registry.Put(Service::ClassesRoot, VideoKey, "", TextValue("x"));
    Set("chkSHMediaDLL", 1);
    passes.Write();
    CHECK_FALSE(OfClasses(VideoKey, ""));
    CHECK(machine.processes.launched ==
          std::vector<Launched>{{"regsvr32.exe %windir%\\system32\\shmedia.dll /u /s", 0}});
    CHECK(Regged() == "false");
}

TEST_CASE_FIXTURE(Tweaks, "the preview being on writes its handler and registers the library") {
    Set("chkSHMediaDLL", 0);
    passes.Write();
    CHECK(OfClasses(VideoKey, "") == BareTextValue("{87D62D94-71B3-4b9a-9489-5FE6850DC73E}"));
    CHECK(machine.processes.launched ==
          std::vector<Launched>{{"regsvr32.exe %windir%\\system32\\shmedia.dll /s", 0}});
    CHECK(Regged() == "true");
}

TEST_CASE_FIXTURE(Tweaks, "the preview is the last step of a pass, its setting the very last") {
    passes.Write();
    const auto& lines = machine.journal.Lines();
    REQUIRE(lines.size() > 4);
    CHECK(lines.back().find("Regged") != std::string::npos);
    CHECK(lines[lines.size() - 2].find("regsvr32.exe") != std::string::npos);
    CHECK(lines[lines.size() - 4].find("{87D62D94-71B3-4b9a-9489-5FE6850DC73E}") !=
          std::string::npos);
}

TEST_CASE_FIXTURE(Tweaks, "a second pass runs the preview's command again") {
    passes.Write();
    passes.Write();
    CHECK(machine.processes.launched.size() == 2);
}

TEST_CASE_FIXTURE(Tweaks, "a preview command that does not start ends the pass, unremembered") {
    machine.faults.FailOn("regsvr32", runtime::FileNotFound);
    CHECK_THROWS_AS(passes.Write(), runtime::Failure);
    CHECK(Regged() == "absent");
    CHECK(form.Pointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Tweaks, "a read pass neither sets the preview nor the Windows components") {
    Set("chkSHMediaDLL", 1);
    Set("chkHideWinComponents", 1);
    PutMachine(AdvancedKey, "EncryptionContextMenu", DwordValue(1));
    passes.Read();
    CHECK(State("chkEncryptionContext") == 1);
    CHECK(State("chkSHMediaDLL") == 1);
    CHECK(State("chkHideWinComponents") == 1);
}

TEST_CASE_FIXTURE(Tweaks, "the Windows components have no step in the write pass") {
    passes.Write();
    machine.journal.Clear();
    passes.Write();
    const auto without = machine.journal.Count();
    Set("chkHideWinComponents", 1);
    machine.journal.Clear();
    passes.Write();
    CHECK(machine.journal.Count() == without);
}
