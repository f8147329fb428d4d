// AutoTuning and the presets in the whole program, up to the Apply that follows.
#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using platform::Registry;
using platform::simulated::TextValue;

namespace {

constexpr char WinlogonKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
constexpr char BinKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
    "{645FF040-5081-101B-9F08-00AA002F954E}";

struct Tuning : Program {
    Tuning() { machine.messages.AnswerAll("AutoTuning", platform::message::Yes); }

    void Tune() { Press("cmdSetAllOptimal"); }
    auto OfWinlogon(const char* value) {
        return machine.registry.Value(Registry::LocalMachine, WinlogonKey, value);
    }
};

}  // namespace

TEST_CASE("each button of the pages is joined to its own preset") {
    const std::pair<const char*, std::pair<const char*, int>> buttons[] = {
        {"cmdNormal", {"chkLastAccessTimestamp", 1}}, {"cmdOptimal", {"chkMFTTuning", 1}},
        {"cmdNormalWindows2", {"chkUnloadDll", 0}},   {"cmdOptimalWindows2", {"chkUnloadDll", 1}},
        {"cmdDefaultMisc", {"chkWatsonXP", 1}},       {"cmdOptimalMisc", {"chkWatsonXP", 0}},
        {"cmdStandardDfue", {"chkNetworkSpeed", 0}},  {"cmdOptimalDfue", {"chkNetworkSpeed", 1}},
    };
    for (const auto& [button, expected] : buttons) {
        CAPTURE(button);
        Program program;
        REQUIRE(program.Start());
        program.Check(expected.first).SetValue(2);
        program.Press(button);
        CHECK(program.Check(expected.first).Value() == expected.second);
        CHECK(program.machine.messages.Shown().empty());
    }
}

TEST_CASE("the small standard of the extensions fills them") {
    Program program;
    REQUIRE(program.Start());
    program.Press("cmdExtensionDefault");
    CHECK(program.Text("txtExtensions").Text() == "exe;zip");
}

TEST_CASE("a chosen connection type loads its numbers into the page") {
    Program program;
    REQUIRE(program.Start());
    program.form->Find<toolkit::OptionButton>("optOptimalDFUESets(3)").SetValue(true);
    CHECK(program.Combo("cboMTU").Text() == "3000");
    CHECK(program.Text("txtRWIN").Text() == "32767");
    CHECK(program.Combo("cboHTTP10").Text() == "20");
}

TEST_CASE("AutoTuning alone brings nothing into the system and stores no option box") {
    Tuning program;
    program.machine.registry.MakeKey(Registry::LocalMachine, WinlogonKey);
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    const auto before = program.machine.registry.Dump();
    program.Tune();
    CHECK(program.Check("chkLargeSystemCache").Value() == 1);
    CHECK(program.machine.registry.Dump() == before);
    CHECK(program.Stored("TrayIcon") == "absent");
    CHECK_FALSE(program.machine.files.Content(LogPath).has_value());
}

TEST_CASE("No to AutoTuning leaves the window as it was") {
    Tuning program;
    REQUIRE(program.Start());
    program.machine.messages.Answer("AutoTuning", platform::message::No);
    program.machine.journal.Clear();
    program.Tune();
    CHECK(program.Check("chkLargeSystemCache").Value() == 0);
    CHECK(program.machine.journal.Count() == 1);
}

TEST_CASE("an automatic logon is cleared by AutoTuning and removed by the next pass only") {
    Tuning program;
    const char* const values[] = {"AutoAdminLogon", "DefaultUserName", "DefaultPassword",
                                  "DefaultDomainName"};
    for (const char* value : values) {
        program.machine.registry.Put(Registry::LocalMachine, WinlogonKey, value, TextValue("1"));
    }
    REQUIRE(program.Start());
    REQUIRE(program.Check("chkAutoLogin").Value() == 1);
    program.Tune();
    CHECK(program.Check("chkAutoLogin").Value() == 0);
    CHECK(program.Text("txtALPassword").Text().empty());
    for (const char* value : values) CHECK(program.OfWinlogon(value));
    program.form->WriteRegistry();
    for (const char* value : values) CHECK_FALSE(program.OfWinlogon(value));
}

TEST_CASE("the recycle bin's key is left to its box by AutoTuning, and by the pass behind it") {
    for (const bool removed : {false, true}) {
        Tuning program;
        if (!removed) program.machine.registry.MakeKey(Registry::LocalMachine, BinKey);
        REQUIRE(program.Start());
        program.Check("chk1RecycleBinDelete").SetValue(removed ? 1 : 0);
        program.Tune();
        CHECK(program.Check("chk1RecycleBinDelete").Value() == (removed ? 1 : 0));
        CHECK(program.machine.registry.HasKey(Registry::LocalMachine, BinKey) == !removed);
        program.form->WriteRegistry();
        CHECK(program.Check("chk1RecycleBinDelete").Value() == (removed ? 1 : 0));
        CHECK(program.machine.registry.HasKey(Registry::LocalMachine, BinKey) == !removed);
    }
}

TEST_CASE("AutoTuning makes the numbers whole that a pass would complain about") {
    const auto complaints = [](bool tuned) {
        Tuning program;
        REQUIRE(program.Start());
        if (tuned) program.Tune();
        program.machine.messages.AnswerAll("Fehler", platform::message::Cancel);
        program.form->WriteRegistry();
        std::size_t count = 0;
        for (const auto& box : program.machine.messages.Shown()) count += box.title == "Fehler";
        return count;
    };
    CHECK(complaints(false) == 6);
    CHECK(complaints(true) == 0);
}
