#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using Lines = std::vector<std::string>;

namespace {

constexpr char Title[] = "Einstellungen aktualisiert";
// 2026-11-21 15:05:09 UTC.
const std::string Answer = "\xEE\xAC\x31\xA5";

const std::string& LabelText(const Program& program) {
    return program.form->Find<toolkit::Label>("lblDateAndTime").Caption();
}

}  // namespace

TEST_CASE("date and time run while the window is open, once a second") {
    Program program;
    REQUIRE(program.Start());
    CHECK(LabelText(program) == "");
    program.machine.clock.Advance(1000);
    CHECK(LabelText(program) == "Freitag, 05. März 2004, 14:07 Uhr");
}

TEST_CASE("the clock runs from the start on, also behind the first warning") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    std::string behind;
    program.machine.forms.WhenModal("frmFirstInfo", [&](toolkit::Form& warning) {
        program.machine.clock.Advance(1000);
        behind = LabelText(program);
        warning.Find<controls::chameleonButton>("Command2").Press();
    });
    REQUIRE(program.Start());
    CHECK(behind == "Freitag, 05. März 2004, 14:07 Uhr");
}

TEST_CASE("a system without a timer to spare starts without the running clock") {
    Program program;
    program.machine.faults.FailAll("SetTimer", 7);
    REQUIRE(program.Start());
    program.machine.clock.Advance(5000);
    CHECK(LabelText(program) == "");
    CHECK(program.machine.messages.Shown().empty());
}

TEST_CASE("a fresh start asks the time server, and its answer sets the clock behind the box") {
    Program program;
    REQUIRE(program.Start());
    program.machine.socket.Serve(37, {{Answer}});
    bool set = false;
    program.machine.messages.WhileOpen(Title, [&] {
        program.machine.socket.RaiseAll();
        set = program.machine.clock.now == platform::LocalTime{2026, 11, 21, 16, 5, 9};
    });
    program.Press("cmdSynchronizeDateTime");
    CHECK(set);
    CHECK(program.machine.journal.Calls("Socket.Connect") ==
          Lines{"Socket.Connect time.nist.gov:37"});
    program.machine.clock.Advance(1000);
    CHECK(LabelText(program) == "Samstag, 21. November 2026, 16:05 Uhr");
}

TEST_CASE("an answer that comes long after the message still sets the clock") {
    Program program;
    REQUIRE(program.Start());
    program.machine.socket.Serve(37, {{"\xEE", "\xAC\x31\xA5"}});
    program.Press("cmdSynchronizeDateTime");
    program.machine.clock.Advance(60'000);
    CHECK(program.machine.clock.now.year == 2004);
    program.machine.socket.RaiseAll();
    CHECK(program.machine.clock.now.year == 2026);
    CHECK(program.machine.messages.Shown().size() == 1);
}

TEST_CASE("the computer named in the text box is asked when it is chosen") {
    Program program;
    program.machine.settingsStore.Put("Options", "ServerName", "zeit");
    program.machine.settingsStore.Put("Options", "SyncServer", "1");
    REQUIRE(program.Start());
    program.machine.network.SetTimeOf("\\\\zeit", {.hours = 1, .day = 2, .month = 3, .year = 2005});
    program.Press("cmdSynchronizeDateTime");
    CHECK(program.machine.messages.Shown().size() == 2);
    CHECK(program.machine.clock.now == platform::LocalTime{2005, 3, 2, 1, 0, 0});
}

TEST_CASE("after a restart the time server is chosen again, and the name is the last one") {
    Program first;
    REQUIRE(first.Start());
    first.form->Find<toolkit::OptionButton>("optSynServer").SetValue(true);
    first.Text("txtSyncServer").SetText("\\\\zeit");
    CHECK(first.Close());
    CHECK(first.Stored("SyncAtom") == "absent");
    CHECK(first.Stored("SyncServer") == "absent");

    Program second;
    second.machine.settingsStore.Put("Options", "ServerName", first.Stored("ServerName"));
    REQUIRE(second.Start());
    CHECK(second.form->Find<toolkit::OptionButton>("optAtomUhr").Value());
    CHECK_FALSE(second.form->Find<toolkit::OptionButton>("optSynServer").Value());
    CHECK(second.Text("txtSyncServer").Text() == "\\\\zeit");
}

TEST_CASE("a failure of the synchronisation is told by its own message and not logged") {
    Program program;
    REQUIRE(program.Start());
    program.machine.faults.FailAll("Socket.Connect", 429);
    program.Press("cmdSynchronizeDateTime");
    CHECK(program.machine.messages.Shown().size() == 1);
    CHECK_FALSE(program.machine.files.Content(LogPath));
}

TEST_CASE("the synchronisation waits for no Apply and leaves no setting behind") {
    Program program;
    REQUIRE(program.Start());
    const auto registry = program.machine.registry.Dump();
    const auto settings = program.machine.settingsStore.All();
    program.form->Find<toolkit::OptionButton>("optSynServer").SetValue(true);
    program.Press("cmdSynchronizeDateTime");
    CHECK(program.machine.journal.Calls("SetLocalTime").size() == 1);
    CHECK(program.machine.registry.Dump() == registry);
    CHECK(program.machine.settingsStore.All() == settings);
}
