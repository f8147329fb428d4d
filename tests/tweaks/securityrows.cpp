// The oddities of the page Sicherheit, each by its name. All of them are meant.
#include <doctest/doctest.h>

#include "tweaks/pagefixture.h"
#include "tweaks/sideeffects.h"

using namespace tweak_tests;

namespace {

constexpr std::string_view ExplorerKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer";
constexpr std::string_view WatsonKey = "Software\\Policies\\Microsoft\\Office\\10.0\\Common";
constexpr std::string_view ReportKey = "SOFTWARE\\Microsoft\\PCHealth\\ErrorReporting";
constexpr std::string_view UpdateKey = "SYSTEM\\CurrentControlSet\\Control\\Update";
constexpr std::string_view LogonKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system";
constexpr std::string_view SharedKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace"
    "\\DelegateFolders\\{59031a47-3f72-44a7-89c5-5595fe6b30ee}";
constexpr std::string_view AlexaKey =
    "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions\\{c95fe080-8f5d-11d2-a20b-00aa003c157a}";
constexpr std::string_view PlayerKey = "SOFTWARE\\Microsoft\\MediaPlayer\\PlayerUpgrade";

using Texts = std::vector<std::string>;

struct Security : Options {
    void Set(const char* name, int state) { form.Check(name).SetValue(state); }
    bool HasMachineKey(std::string_view key) {
        return machine.registry.HasKey(Service::LocalMachine, key);
    }
    void Write() {
        FillNumbers();
        machine.journal.Clear();
        passes.Write();
    }
    // What a call wrote or deleted in that key, in order, without its handle and result.
    Texts DoneIn(std::string_view root, std::string_view key, const std::string& call) {
        Texts done;
        bool inKey = false;
        for (const std::string& line : machine.journal.Lines()) {
            if (line.starts_with("RegOpenKeyExA")) {
                inKey = line.find(std::string(root) + " \"" + std::string(key) + "\" ") !=
                        std::string::npos;
            }
            if (inKey && line.starts_with(call)) {
                const std::size_t at = line.find('"');
                done.push_back(line.substr(at, line.rfind(" -> ") - at));
            }
        }
        return done;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Security, "Office's Dr. Watson is read from the machine, written for the user") {
    PutMachine(WatsonKey, "DWNeverUpload", DwordValue(0));
    passes.Read();
    CHECK(State("chkWatsonXP") == 1);
    Set("chkWatsonXP", 0);
    Write();
    CHECK(OfMachine(WatsonKey, "DWNeverUpload") == DwordValue(0));
    CHECK(OfUser(WatsonKey, "DWNeverUpload") == DwordValue(1));
    passes.Read();
    CHECK(State("chkWatsonXP") == 1);
}

TEST_CASE_FIXTURE(Security, "what a user has of Office's Dr. Watson is not looked at") {
    PutUser(WatsonKey, "DWNeverUpload", DwordValue(0));
    Set("chkWatsonXP", 1);
    passes.Read();
    CHECK(State("chkWatsonXP") == 0);
}

TEST_CASE_FIXTURE(Security, "Office's Dr. Watson writes its four values in order") {
    for (int state : {1, 0}) {
        CAPTURE(state);
        Set("chkWatsonXP", state);
        Write();
        const std::string data = std::string(" type 4 size 4 data ") + (state == 1 ? "0" : "1");
        CHECK(DoneIn("HKCU", WatsonKey, "RegSetValueExA") ==
              Texts{"\"DWNeverUpload\"" + data, "\"DWNoExternalURL\"" + data,
                    "\"DWNoFileCollection\"" + data, "\"DWNoSecondLevelCollection\"" + data});
        CHECK_FALSE(HasMachineKey(WatsonKey));
    }
}

TEST_CASE_FIXTURE(Security, "the Explorer's Dr. Watson is the machine's in both passes") {
    PutUser(IEKey, "IEWatsonEnabled", DwordValue(1));
    passes.Read();
    CHECK(State("chkWatsonIE") == 0);
    PutMachine(IEKey, "IEWatsonEnabled", DwordValue(1));
    passes.Read();
    CHECK(State("chkWatsonIE") == 1);
    Set("chkWatsonIE", 0);
    Write();
    CHECK(OfMachine(IEKey, "IEWatsonEnabled") == DwordValue(0));
    CHECK(OfUser(IEKey, "IEWatsonEnabled") == DwordValue(1));
}

TEST_CASE_FIXTURE(Security,
                  "the desktop's process is read from the user, written for the machine") {
    Set("chkWindowsDesktop", 1);
    Write();
    CHECK(OfMachine(ExplorerKey, "DesktopProcess") == DwordValue(1));
    CHECK_FALSE(OfUser(ExplorerKey, "DesktopProcess"));
    passes.Read();
    CHECK(State("chkWindowsDesktop") == 0);
    PutUser(ExplorerKey, "DesktopProcess", DwordValue(0));
    passes.Read();
    CHECK(State("chkWindowsDesktop") == 1);
    Set("chkWindowsDesktop", 0);
    Write();
    CHECK_FALSE(OfMachine(ExplorerKey, "DesktopProcess"));
    CHECK(OfUser(ExplorerKey, "DesktopProcess") == DwordValue(0));
}

TEST_CASE_FIXTURE(Security, "a report setting of 0 reads as deactivated, an absent one does not") {
    PutMachine(ReportKey, "DoReport", DwordValue(0));
    passes.Read();
    CHECK(State("chkErrorReporting") == 1);
    machine.registry.Erase(Service::LocalMachine, ReportKey, "DoReport");
    passes.Read();
    CHECK(State("chkErrorReporting") == 0);
}

TEST_CASE_FIXTURE(Security, "a report setting of 1, 2 or no number reads as not deactivated") {
    for (const StoredValue& value : {DwordValue(1), DwordValue(2), TextValue("nie")}) {
        PutMachine(ReportKey, "DoReport", value);
        Set("chkErrorReporting", 1);
        passes.Read();
        CHECK(State("chkErrorReporting") == 0);
    }
}

TEST_CASE_FIXTURE(Security, "a number below 0 deactivates the reports, but not the updates") {
    PutMachine(ReportKey, "DoReport", DwordValue(0xFFFFFFFF));
    PutMachine(UpdateKey, "UpdateMode", DwordValue(0xFFFFFFFF));
    passes.Read();
    CHECK(State("chkErrorReporting") == 1);
    CHECK(State("chkWindowsUpdate") == 0);
}

TEST_CASE_FIXTURE(Security, "whether a report is shown is written along and never read") {
    PutMachine(ReportKey, "DoReport", DwordValue(0));
    PutMachine(ReportKey, "ShowUI", DwordValue(1));
    passes.Read();
    CHECK(State("chkErrorReporting") == 1);
    CHECK(machine.journal.Text().find("\"ShowUI\"") == std::string::npos);
    for (int state : {1, 0}) {
        Set("chkErrorReporting", state);
        Write();
        const std::string data = std::string(" type 4 size 4 data ") + (state == 1 ? "0" : "1");
        CHECK(DoneIn("HKLM", ReportKey, "RegSetValueExA") ==
              Texts{"\"DoReport\"" + data, "\"ShowUI\"" + data});
    }
}

TEST_CASE_FIXTURE(Security, "showing all files is compared as a number and written as a text") {
    PutUser(AdvancedKey, "SuperHidden", DwordValue(1));
    passes.Read();
    CHECK(State("chkShowALLFiles") == 1);
    Write();
    CHECK(OfUser(AdvancedKey, "SuperHidden") == BareTextValue("1"));
    passes.Read();
    CHECK(State("chkShowALLFiles") == 1);
    Set("chkShowALLFiles", 0);
    Write();
    CHECK_FALSE(OfUser(AdvancedKey, "SuperHidden"));
}

TEST_CASE_FIXTURE(Security, "an update mode of 0 reads as deactivated, an absent one does not") {
    PutMachine(UpdateKey, "UpdateMode", DwordValue(0));
    passes.Read();
    CHECK(State("chkWindowsUpdate") == 1);
    machine.registry.EraseKey(Service::LocalMachine, UpdateKey);
    passes.Read();
    CHECK(State("chkWindowsUpdate") == 0);
    Write();
    CHECK(OfMachine(UpdateKey, "UpdateMode") == DwordValue(1));
}

TEST_CASE_FIXTURE(Security, "a task manager's value of 0 reads as locked, and Apply writes 1") {
    PutUser(PoliciesKey, "DisableTaskMgr", DwordValue(0));
    passes.Read();
    CHECK(State("chkDisableTM") == 1);
    Write();
    CHECK(OfUser(PoliciesKey, "DisableTaskMgr") == DwordValue(1));
    Set("chkDisableTM", 0);
    Write();
    CHECK_FALSE(OfUser(PoliciesKey, "DisableTaskMgr"));
}

TEST_CASE_FIXTURE(Security, "an absent setting of the NT login reads as on, and Apply writes 1") {
    passes.Read();
    CHECK(State("chkNTLogin") == 1);
    Write();
    CHECK(OfMachine(LogonKey, "disablecad") == DwordValue(1));
    PutMachine(LogonKey, "disablecad", DwordValue(0));
    passes.Read();
    CHECK(State("chkNTLogin") == 0);
}

TEST_CASE_FIXTURE(Security, "the NT login's key is passed on in lower case") {
    Write();
    CHECK(machine.journal.Text().find("CurrentVersion\\policies\\system\" 0x02") !=
          std::string::npos);
}

TEST_CASE_FIXTURE(Security, "an absent setting of the page file reads as on, and Apply writes 1") {
    passes.Read();
    CHECK(State("chkPageFileDelete") == 1);
    Write();
    CHECK(OfMachine(MemoryKey, "ClearPageFileAtShutdown") == DwordValue(1));
}

TEST_CASE_FIXTURE(Security, "shared folders as Windows made them read as removed, and then are") {
    machine.registry.MakeKey(Service::LocalMachine, SharedKey);
    PutMachine(SharedKey, "", TextValue("DelegateFolders"));
    passes.Read();
    CHECK(State("chkDelegateFolders") == 1);
    Write();
    CHECK_FALSE(HasMachineKey(SharedKey));
}

TEST_CASE_FIXTURE(Security, "shared folders that the program brought back read as kept") {
    Set("chkDelegateFolders", 0);
    Write();
    CHECK(OfMachine(SharedKey, "(Standard)") == BareTextValue(""));
    CHECK_FALSE(OfMachine(SharedKey, ""));
    passes.Read();
    CHECK(State("chkDelegateFolders") == 0);
}

TEST_CASE_FIXTURE(Security, "removing shared folders that are not there does nothing") {
    Set("chkDelegateFolders", 1);
    Write();
    CHECK_FALSE(HasMachineKey(SharedKey));
    for (const std::string& line : machine.journal.Calls("RegDeleteKeyA")) {
        CHECK(line.find("DelegateFolders") == std::string::npos);
    }
}

TEST_CASE_FIXTURE(Security,
                  "keeping shared folders that are there does nothing, they read removed") {
    machine.registry.MakeKey(Service::LocalMachine, SharedKey);
    Set("chkDelegateFolders", 0);
    Write();
    CHECK(HasMachineKey(SharedKey));
    CHECK_FALSE(OfMachine(SharedKey, "(Standard)"));
    passes.Read();
    CHECK(State("chkDelegateFolders") == 1);
}

TEST_CASE_FIXTURE(Security, "a logon text without a title reads as off, and Apply wipes it") {
    PutMachine(WinlogonKey, "LegalNoticeText", TextValue("Guten Morgen"));
    PutMachine(WinlogonKey, "LegalNoticeCaption", TextValue(""));
    Set("chkWinLogOn", 1);
    passes.Read();
    CHECK(Text("txtWinLogOnT") == "Guten Morgen");
    CHECK(State("chkWinLogOn") == 0);
    Write();
    CHECK(OfMachine(WinlogonKey, "LegalNoticeText") == BareTextValue(""));
    CHECK(OfMachine(WinlogonKey, "LegalNoticeCaption") == BareTextValue(""));
    CHECK(Text("txtWinLogOnT") == "Guten Morgen");
}

TEST_CASE_FIXTURE(Security, "a logon title alone reads as on") {
    PutMachine(WinlogonKey, "LegalNoticeCaption", TextValue("Achtung"));
    passes.Read();
    CHECK(State("chkWinLogOn") == 1);
    CHECK(Text("txtWinLogOnC") == "Achtung");
    CHECK(Text("txtWinLogOnT") == "");
}

TEST_CASE_FIXTURE(Security, "a logon message is asked for and written text first, then title") {
    PutMachine(WinlogonKey, "LegalNoticeText", TextValue("alt"));
    PutMachine(WinlogonKey, "LegalNoticeCaption", TextValue("alt"));
    machine.journal.Clear();
    passes.Read();
    const std::string read = machine.journal.Text();
    CHECK(read.find("\"LegalNoticeText\"") < read.find("\"LegalNoticeCaption\""));
    form.Box("txtWinLogOnT").SetText("Zwei\r\nZeilen");
    form.Box("txtWinLogOnC").SetText("Größe");
    Set("chkWinLogOn", 1);
    Write();
    CHECK(OfMachine(WinlogonKey, "LegalNoticeText") == BareTextValue("Zwei\r\nZeilen"));
    CHECK(OfMachine(WinlogonKey, "LegalNoticeCaption") == BareTextValue("Größe"));
    const std::string written = machine.journal.Text();
    CHECK(written.find("\"LegalNoticeText\"") < written.find("\"LegalNoticeCaption\""));
}

TEST_CASE_FIXTURE(Security, "a logon message that is off is emptied, not deleted, its boxes stay") {
    form.Box("txtWinLogOnT").SetText("Text");
    form.Box("txtWinLogOnC").SetText("Titel");
    Set("chkWinLogOn", 0);
    Write();
    CHECK(OfMachine(WinlogonKey, "LegalNoticeText") == BareTextValue(""));
    CHECK(OfMachine(WinlogonKey, "LegalNoticeCaption") == BareTextValue(""));
    CHECK(Text("txtWinLogOnT") == "Text");
    CHECK(Text("txtWinLogOnC") == "Titel");
    for (const std::string& line : machine.journal.Calls("RegDeleteValueA")) {
        CHECK(line.find("LegalNotice") == std::string::npos);
    }
}

TEST_CASE_FIXTURE(Security, "a logon message that is on with empty boxes writes empty texts") {
    PutMachine(WinlogonKey, "LegalNoticeCaption", TextValue("alt"));
    Set("chkWinLogOn", 1);
    Write();
    CHECK(OfMachine(WinlogonKey, "LegalNoticeCaption") == BareTextValue(""));
    passes.Read();
    CHECK(State("chkWinLogOn") == 0);
}

TEST_CASE_FIXTURE(Security, "the ALEXA entry is written with its eight texts in order") {
    Set("chkDatensicherheit(1)", 0);
    Write();
    CHECK(DoneIn("HKLM", AlexaKey, "RegSetValueExA") ==
          Texts{"\"(Standard)\" type 1 size 0 data \"\"",
                "\"ButtonText\" type 1 size 17 data \"@shdoclc.dll,-866\"",
                "\"clsid\" type 1 size 38 data \"{1FBA04EE-3024-11D2-8F1F-0000F87ABD16}\"",
                "\"HotIcon\" type 1 size 2 data \",4\"", "\"Icon\" type 1 size 2 data \",4\"",
                "\"MenuStatusBar\" type 1 size 17 data \"@shdoclc.dll,-865\"",
                "\"MenuText\" type 1 size 17 data \"@shdoclc.dll,-864\"",
                "\"Script\" type 1 size 28 data \"%SystemRoot%\\web\\related.htm\""});
    passes.Read();
    CHECK(State("chkDatensicherheit(1)") == 0);
}

TEST_CASE_FIXTURE(Security, "an incomplete ALEXA entry is left as it is and reads as removed") {
    PutMachine(AlexaKey, "Icon", TextValue("eigenes"));
    Set("chkDatensicherheit(1)", 0);
    Write();
    CHECK(OfMachine(AlexaKey, "Icon") == TextValue("eigenes"));
    CHECK_FALSE(OfMachine(AlexaKey, "MenuStatusBar"));
    passes.Read();
    CHECK(State("chkDatensicherheit(1)") == 1);
}

TEST_CASE_FIXTURE(Security, "the ALEXA entry's key is deleted without a look whether it is there") {
    Set("chkDatensicherheit(1)", 1);
    Write();
    CHECK(machine.journal.Text().find("RegDeleteKeyA HKLM \"" + std::string(AlexaKey) +
                                      "\" -> 2") != std::string::npos);
    for (const std::string& line : machine.journal.Calls("RegOpenKeyExA")) {
        CHECK(line.find("c95fe080") == std::string::npos);
    }
}

TEST_CASE_FIXTURE(Security, "an ALEXA entry with keys below it stays") {
    PutMachine(AlexaKey, "MenuStatusBar", TextValue("x"));
    machine.registry.MakeKey(Service::LocalMachine, std::string(AlexaKey) + "\\Eigenes");
    Set("chkDatensicherheit(1)", 1);
    Write();
    CHECK(OfMachine(AlexaKey, "MenuStatusBar") == TextValue("x"));
}

TEST_CASE_FIXTURE(Security, "a player update of Yes is shown and leaves the tooltips' box alone") {
    PutMachine(PlayerKey, "EnableAutoUpgrade", TextValue("Yes"));
    PutUser(AdvancedKey, "ShowInfoTip", DwordValue(1));
    passes.Read();
    CHECK(State("chkDatensicherheit(2)") == 1);
    CHECK(State("chkDescriptionPopups") == 1);
}

TEST_CASE_FIXTURE(Security, "a player update of yes or No clears the tooltips' box, not its own") {
    PutUser(AdvancedKey, "ShowInfoTip", DwordValue(1));
    for (const char* text : {"yes", "YES", "No", "", "Yes "}) {
        for (int state : {1, 0}) {
            CAPTURE(text);
            CAPTURE(state);
            PutMachine(PlayerKey, "EnableAutoUpgrade", TextValue(text));
            Set("chkDatensicherheit(2)", state);
            Set("chkDescriptionPopups", 1);
            passes.Read();
            CHECK(State("chkDescriptionPopups") == 0);
            CHECK(State("chkDatensicherheit(2)") == state);
        }
    }
}

TEST_CASE_FIXTURE(Security, "an absent player update overrules the tooltips and shows the design") {
    PutUser(AdvancedKey, "ShowInfoTip", DwordValue(1));
    passes.Read();
    CHECK(State("chkDescriptionPopups") == 0);
    CHECK(State("chkDatensicherheit(2)") == 0);
}

TEST_CASE_FIXTURE(Security, "a player update that was not understood is written as it is shown") {
    for (int state : {1, 0}) {
        PutMachine(PlayerKey, "EnableAutoUpgrade", TextValue("yes"));
        Set("chkDatensicherheit(2)", state);
        passes.Read();
        Write();
        CHECK(OfMachine(PlayerKey, "EnableAutoUpgrade") ==
              BareTextValue(state == 1 ? "Yes" : "No"));
        CHECK(OfUser(AdvancedKey, "ShowInfoTip") == DwordValue(0));
    }
}

TEST_CASE_FIXTURE(Security, "no pass touches what the UPnP and the recycle bin's boxes act on") {
    tweaks::ConnectSideEffects(form, machine.services);
    machine.registry.MakeKey(Service::LocalMachine, BinKey);
    Set("chkSecureWindows", 1);
    Set("chk1RecycleBinDelete", 1);
    machine.registry.MakeKey(Service::LocalMachine, BinKey);
    machine.settingsStore.Put("SecureWindows", "Regged", "unberührt");
    const auto launched = machine.processes.launched.size();
    // Another command is the last step of a write pass.
    Write();
    passes.Read();
    CHECK(HasMachineKey(BinKey));
    CHECK(State("chkSecureWindows") == 1);
    CHECK(State("chk1RecycleBinDelete") == 1);
    CHECK(machine.settingsStore.Stored("SecureWindows", "Regged") == "unberührt");
    REQUIRE(machine.processes.launched.size() == launched + 1);
    CHECK(machine.processes.launched.back().commandLine.find("upnp") == std::string::npos);
}
