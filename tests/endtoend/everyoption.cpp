#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "endtoend/everyoptionrun.h"
#include "endtoend/lines.h"
#include "endtoend/optiontable.h"
#include "endtoend/optiontablewords.h"
#include "endtoend/registrydump.h"

namespace endtoend {
namespace {

// The check boxes that a freshly installed Windows sets, by the facts of the baseline.
const std::set<std::string> OnInBaseline = {
    "chkmemorymanagement", "chkBootOptimizeFunction",
    "chkMFTTuning",        "chkLastAccessTimestamp",
    "chkSHMediaDLL",       "chkWinAnimate",
    "chkNeroBurnSpeed",    "chkCDAutoPlay",
    "chkBSODAutostart",    "chkSystemRestore",
    "chkNoSpaceCheck",     "chkSystemSpeaker",
    "chkDOSComp",          "chkNTLogin",
    "chkDelegateFolders",  "chkDatensicherheit(1)",
    "chkIEWinPos",         "chkScriptDebugging",
    "chkNetworkTasks",
};

ControlStates Reversed(ControlStates states) {
    for (auto& [name, state] : states) {
        if (name.starts_with("chk")) state = state == "1" ? "0" : "1";
    }
    return states;
}

ControlStates WithTexts(ControlStates states) {
    const ControlStates texts = {
        {"cboMTU", "1492"},
        {"txtRWIN", "32767"},
        {"txtTTL", "64"},
        {"cboHTTP10", "20"},
        {"cboHTTP11", "8"},
        {"txtTimeOut", "4000"},
        {"txtStartmenu", "123"},
        {"txtIETitel", "http://www.example.com/süche?a=b&c=\"d\""},
        {"txtOSVersion", "Fenster für Übermütige"},
        {"txtUserName", "Jörg Müßig"},
        {"txtCompanyName", "Grün & Söhne"},
        {"txtWindowsVersion", "5.2"},
        {"txtOSBuild", "2601"},
        {"txtALUserName", "Jörg"},
        {"txtALPassword", "Geheim€ß"},
        {"txtALDomain", "MÜNCHEN"},
        {"txtExtensions", "exe;zip"},
        {"txtWinLogOnT", "Erste Zeile\r\nZweite Zeile"},
        {"txtWinLogOnC", "Achtung"},
    };
    for (const auto& [name, text] : texts) states.at(name) = text;
    return states;
}

// The values of all places become this one.
void StoreEverywhere(const std::optional<RegistryValue>& value) {
    for (const Fact& fact : Facts()) {
        if (value) {
            WriteValue(fact.place, *value);
        } else {
            DeleteValue(fact.place);
        }
    }
}

TEST_CASE("each line of the catalogue says itself what an absent value reads as") {
    ControlStates states = DesignStates();
    CHECK(PredictRead(PredictedRegistry({}), states).failure == 0);
    for (const Fact& fact : Facts()) {
        CAPTURE(fact.control);
        if (fact.read.absent == "on") CHECK(states.at(fact.control) == "1");
        if (fact.read.absent == "off") CHECK(states.at(fact.control) == "0");
        if (!fact.IsCheckBox()) CHECK(states.at(fact.control) == "");
    }
}

TEST_CASE("every option shows what the baseline holds, under its own caption") {
    SeeDesktop();
    const Workplace workplace;
    const OptionRun run(workplace, SnapshotOfMachine);
    CHECK(Joined(run.Wrong()) == "");
    for (const auto& [name, state] : run.Controls()) {
        CAPTURE(name);
        if (name.starts_with("chk")) CHECK((state == "1") == OnInBaseline.contains(name));
    }
    for (const Fact& fact : Facts()) {
        if (!fact.IsCheckBox()) continue;
        CAPTURE(fact.control);
        // The doubled ampersand, which stands for one, is written as it is in the catalogue.
        CHECK(WithoutMarks(run.Running().Text(fact.control)) == WithoutMarks(fact.caption));
    }
}

TEST_CASE("every option is written in both states, exactly so, and nothing else changes") {
    SeeDesktop();
    const Workplace workplace;
    CreateKey("HKLM", GraphicsDriverKey);
    ControlStates first;
    {
        OptionRun run(workplace, SnapshotOfMachine);
        run.Set(WithTexts(Reversed(run.Controls())));
        run.Apply();
        CHECK(run.Outcome().complaints.empty());
        CHECK(run.Outcome().failure == 0);
        CHECK(Joined(run.Wrong()) == "");
        first = run.Controls();
        // Once more, on what the first Apply has left.
        run.Apply();
        CHECK(Joined(run.Wrong()) == "");
    }
    OptionRun run(workplace, SnapshotOfMachine);
    run.Set(WithTexts(Reversed(first)));
    run.Apply();
    CHECK(Joined(run.Wrong()) == "");
    CHECK(workplace.Log() == "");
}

TEST_CASE("values that are absent or of another kind are read and replaced alike on every page") {
    SeeDesktop();
    const std::vector<std::optional<RegistryValue>> kinds = {
        std::nullopt,
        RegistryValue{REG_NONE, "\1"},
        RegistryValue{REG_QWORD, std::string("\1\0\0\0\0\0\0\0", 8)},
        RegistryValue{REG_DWORD, std::string("\1\0\0\0\0\0\0\0", 8)},
        RegistryValue{REG_BINARY, "\1"},
        RegistryValue{REG_MULTI_SZ, BareText("1").bytes},
        BareText(""),
    };
    for (const auto& kind : kinds) {
        CAPTURE(Describe(kind));
        const Workplace workplace;
        StoreEverywhere(kind);
        OptionRun run(workplace);
        run.Apply();
        CHECK(Joined(run.Wrong()) == "");
    }
}

TEST_CASE("a key with keys below it is not deleted, and keeps its values") {
    SeeDesktop();
    const Workplace workplace;
    std::vector<ValuePlace> kept;
    for (const Fact& fact : Facts()) {
        for (const WriteWords& side : {fact.on, fact.off}) {
            if (side.action != WriteWords::Action::DeleteKey) continue;
            WriteValue(fact.place, Dword(7));
            CreateKey(fact.place.root, fact.place.key + "\\Darunter");
            kept.push_back(fact.place);
        }
    }
    REQUIRE(kept.size() > 10);
    // On deletes some of these keys, off the others.
    for (const bool on : {true, false}) {
        OptionRun run(workplace);
        ControlStates wanted = run.Controls();
        for (auto& [name, state] : wanted) {
            if (name.starts_with("chk")) state = on ? "1" : "0";
        }
        run.Set(wanted);
        run.Apply();
        CHECK(Joined(run.Wrong()) == "");
        for (const ValuePlace& place : kept) {
            CAPTURE(place.key);
            CHECK(KeyExists(place.root, place.key + "\\Darunter"));
            CHECK(ReadValue(place).has_value());
        }
    }
    for (const ValuePlace& place : kept) DeleteTree(place.root, place.key);
}

struct Office {
    const char* sentence;
    bool earlier;
    bool later;
    // What the fields show when both keys hold an entry, and which key is written.
    const char* shown;
    const char* written;
};

constexpr char EarlierKey[] = "Software\\Microsoft\\Office\\10.0\\Outlook\\Security";
constexpr char LaterKey[] = "Software\\Microsoft\\Office\\11.0\\Outlook\\Security";

TEST_CASE("the later mail program's entry is shown, and the earlier one's key written") {
    SeeDesktop();
    const Office machines[] = {
        {"none is installed", false, false, "", nullptr},
        {"the earlier one only", true, false, "", EarlierKey},
        {"the later one only", false, true, "later", LaterKey},
        {"both", true, true, "later", EarlierKey},
    };
    for (const Office& office : machines) {
        CAPTURE(office.sentence);
        const Workplace workplace;
        if (office.earlier) {
            WriteValue({"HKCU", EarlierKey, "Level1Remove"}, TerminatedText("earlier"));
        }
        if (office.later) {
            WriteValue({"HKCU", LaterKey, "Level1Remove"}, TerminatedText("later"));
        }
        OptionRun run(workplace);
        CHECK(run.Controls().at("txtExtensions") == office.shown);
        ControlStates wanted = run.Controls();
        wanted["chkIEExtensions"] = "1";
        wanted["txtExtensions"] = "exe;zip";
        run.Set(wanted);
        run.Apply();
        CHECK(Joined(run.Wrong()) == "");
        for (const char* key : {EarlierKey, LaterKey}) {
            const bool written = office.written == key;
            CAPTURE(key);
            CHECK((ReadValue({"HKCU", key, "Level"}) == Dword(3)) == written);
            CHECK((ReadValue({"HKCU", key, "Level1Remove"}) == BareText("exe;zip")) == written);
        }
        CHECK(KeyExists("HKCU", EarlierKey) == office.earlier);
        CHECK(KeyExists("HKCU", LaterKey) == office.later);
    }
}

constexpr char TcpKey[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters";
constexpr char InternetKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

TEST_CASE("numbers in any form are stored as numbers, halves as the even neighbour") {
    SeeDesktop();
    const Workplace workplace;
    OptionRun run(workplace);
    ControlStates wanted = run.Controls();
    wanted["cboMTU"] = " 1500 ";
    wanted["txtRWIN"] = "1.500";
    wanted["txtTTL"] = "1e3";
    wanted["cboHTTP10"] = "2,5";
    wanted["cboHTTP11"] = "3,5";
    run.Set(wanted);
    run.Apply();
    CHECK(Joined(run.Wrong()) == "");
    CHECK(run.Outcome().complaints.empty());
    CHECK(ReadValue({"HKLM", TcpKey, "TcpWindowSize"}) == Dword(1500));
    CHECK(ReadValue({"HKLM", TcpKey, "DefaultTTL"}) == Dword(1000));
    CHECK(ReadValue({"HKLM", InternetKey, "MaxConnectionsPer1_0Server"}) == Dword(2));
    CHECK(ReadValue({"HKLM", InternetKey, "MaxConnectionsPerServer"}) == Dword(4));
    for (const char* name :
         {"{3BD4192A-BF2A-4EBA-B0E7-7C61AE30590E}", "{8323E657-4B53-48CC-A90C-C85DAC9764DD}"}) {
        CHECK(ReadValue({"HKLM", std::string(TcpKey) + "\\Interfaces\\" + name, "MTU"}) ==
              Dword(1500));
    }
}

struct FatalNumber {
    const char* field;
    const char* text;
    int failure;
    // The first value that is not written any more.
    ValuePlace unwritten;
};

TEST_CASE("a number that cannot be stored ends the pass there, with one record in the log") {
    SeeDesktop();
    const FatalNumber numbers[] = {
        {"txtRWIN", "abc", 13, {"HKLM", TcpKey, "TcpWindowSize"}},
        {"txtRWIN", "", 13, {"HKLM", TcpKey, "TcpWindowSize"}},
        {"txtTTL", "2147483648", 6, {"HKLM", TcpKey, "DefaultTTL"}},
        {"cboHTTP11", "-1", 5, {"HKLM", InternetKey, "MaxConnectionsPerServer"}},
    };
    for (const auto& [field, text, failure, unwritten] : numbers) {
        CAPTURE(field);
        CAPTURE(text);
        const Workplace workplace;
        OptionRun run(workplace);
        ControlStates wanted = WithTexts(run.Controls());
        wanted[field] = text;
        run.Set(wanted);
        run.Apply();
        CHECK(Joined(run.Wrong()) == "");
        CHECK(run.Outcome().failure == failure);
        CHECK_FALSE(ReadValue(unwritten).has_value());
        CHECK(run.Running().PointerIsChanged("frmMain"));
        const std::string log = workplace.Log();
        CHECK(log.find("Number: " + std::to_string(failure) + "\r\n") != std::string::npos);
        CHECK(log.find("Procedure: WriteRegistry") != std::string::npos);
        CHECK(log.find("Procedure:") == log.rfind("Procedure:"));
    }
}

}  // namespace
}  // namespace endtoend
