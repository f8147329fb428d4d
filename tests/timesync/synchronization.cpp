#include "timesync/synchronization.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;

namespace {

constexpr char Title[] = "Einstellungen aktualisiert";
constexpr char Waiting[] = "Bitte warten, Daten werden angefordert ...";
constexpr char SuccessLine[] =
    "MessageBox \"Einstellungen aktualisiert\" 64 \"Datum und Uhrzeit erfolgreich "
    "synchronisiert!\" -> 1";

// 2026-11-21 15:05:09 UTC.
const std::string ServerBytes = "\xEE\xAC\x31\xA5";
const platform::TimeOfDay Evening{
    .hours = 15, .minutes = 5, .seconds = 9, .timezone = -60, .day = 21, .month = 11, .year = 2026};

ShownMessage NotDone(const std::string& why) {
    return {Title,
            "Datum und Uhrzeit NICHT erfolgreich synchronisiert!\r\n\r\nBeschreibung: " + why, 64};
}

}  // namespace

TEST_CASE_FIXTURE(Frame, "date and time run once a second, from the first second on") {
    CHECK(Label() == "");
    machine.clock.Advance(999);
    CHECK(Label() == "");
    machine.clock.Advance(1);
    CHECK(Label() == "Freitag, 05. März 2004, 14:07 Uhr");
    machine.clock.Advance(50'000);
    CHECK(Label() == "Freitag, 05. März 2004, 14:08 Uhr");
    machine.clock.now = {2026, 11, 2, 8, 4, 0};
    machine.clock.Advance(1000);
    CHECK(Label() == "Montag, 02. November 2026, 08:04 Uhr");
}

TEST_CASE_FIXTURE(Frame, "every day of the week and every month has its German name") {
    const char* const days[] = {"Montag",  "Dienstag", "Mittwoch", "Donnerstag",
                                "Freitag", "Samstag",  "Sonntag"};
    const char* const months[] = {"Januar",    "Februar", "März",     "April",
                                  "Mai",       "Juni",    "Juli",     "August",
                                  "September", "Oktober", "November", "Dezember"};
    // 2018-01-01 was a Monday, and no month of that year has fewer than 28 days.
    const int daysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= 28; ++day) {
            machine.clock.now = {2018, month, day, 8, 4, 0};
            machine.clock.Advance(1000);
            const std::string number = (day < 10 ? "0" : "") + std::to_string(day);
            CHECK(Label() == std::string(days[(daysBefore[month - 1] + day - 1) % 7]) + ", " +
                                 number + ". " + months[month - 1] + " 2018, 08:04 Uhr");
        }
    }
}

TEST_CASE_FIXTURE(Frame, "starting the running clock again does not start a second one") {
    synchronization.Start_tmrUhrzeit();
    CHECK(machine.clock.RunningTimers() == 1);
}

TEST_CASE("the clock stands still when its owner goes") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmMain", "", {});
    {
        timesync::Synchronization synchronization(form, machine.services);
        synchronization.Start_tmrUhrzeit();
    }
    CHECK(machine.clock.RunningTimers() == 0);
}

TEST_CASE_FIXTURE(Frame, "success is told before the server was even reached") {
    machine.socket.Serve(37, {{ServerBytes}});
    Press();
    CHECK(lines == Lines{"Pointer 11", "KillTimer #1", "Label \"" + std::string(Waiting) + '"',
                         "Socket.Close", "Socket.Connect time.nist.gov:37", "Label \"\"",
                         "Pointer 0", SuccessLine, "SetTimer 1000 -> #2"});
    CHECK(Shown() == std::vector{Success});
    machine.socket.RaiseAll();
    CHECK(ClockCalls() == Lines{"SetSystemTime 2026-11-21 15:05:09"});
    CHECK(Shown().size() == 1);
    machine.clock.Advance(1000);
    CHECK(Label() == "Samstag, 21. November 2026, 16:05 Uhr");
}

TEST_CASE_FIXTURE(Frame, "the answer may set the clock behind the open box") {
    machine.socket.Serve(37, {{ServerBytes}});
    bool setBehindTheBox = false;
    bool runs = true;
    machine.messages.WhileOpen(Title, [&] {
        CHECK(ClockCalls().empty());
        machine.socket.RaiseAll();
        setBehindTheBox = ClockCalls() == Lines{"SetSystemTime 2026-11-21 15:05:09"};
        machine.clock.Advance(5000);
        runs = Runs() || Label() != "";
    });
    Press();
    CHECK(setBehindTheBox);
    CHECK_FALSE(runs);
    CHECK(Runs());
}

TEST_CASE_FIXTURE(Frame, "a server that refuses has been told a success all the same") {
    Press();
    machine.socket.RaiseAll();
    CHECK(Shown() == std::vector{Success});
    CHECK(ClockCalls().empty());
    CHECK(Runs());
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Frame, "pressing again while the answer is pending asks anew") {
    machine.socket.Serve(37, {{"\xC3\xF2\xF9\xFD"}});
    machine.socket.Serve(37, {{ServerBytes}});
    Press();
    machine.socket.RaiseNext();
    Press();
    machine.socket.RaiseAll();
    CHECK(ClockCalls() == Lines{"SetSystemTime 2026-11-21 15:05:09"});
    CHECK(Shown() == std::vector{Success, Success});
}

TEST_CASE_FIXTURE(Frame,
                  "the computer on the network sets date and time, and success comes twice") {
    machine.network.SetTimeOf("\\\\zeit", Evening);
    UseServer("zeit");
    Press();
    CHECK(lines == Lines{"Pointer 11", "KillTimer #1", "Label \"" + std::string(Waiting) + '"',
                         "NetRemoteTOD \"\\\\zeit\" -> 0", "NetApiBufferFree",
                         "SetLocalDate 2026-11-21", "SetLocalTime 16:05:09", "Pointer 0",
                         "Label \"\"", SuccessLine, "SetTimer 1000 -> #2", "Label \"\"",
                         SuccessLine});
    CHECK(Runs());
}

TEST_CASE_FIXTURE(Frame, "neither source, nor an answer, takes a form's own hourglass away") {
    machine.socket.Serve(37, {{ServerBytes}});
    form.SetPointer(toolkit::Hourglass);
    Press();
    machine.socket.RaiseAll();
    for (const char* server : {"", "niemand"}) {
        UseServer(server);
        Press();
    }
    machine.faults.FailAll("SetLocalDate", 70);
    UseServer("");
    Press();
    CHECK(Shown().size() == 5);
    CHECK(Shown().back() == NotDone("Zugriff verweigert [70]"));
    CHECK(form.ShownPointer() == toolkit::Hourglass);
    form.SetPointer(toolkit::DefaultPointer);
    CHECK(form.ShownPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Frame, "the clock runs again from the first of the two messages on") {
    machine.network.SetTimeOf("\\\\zeit", Evening);
    UseServer("zeit");
    std::vector<bool> running;
    for (int box = 0; box < 2; ++box) {
        machine.messages.WhileOpen(Title, [&] { running.push_back(Runs()); });
    }
    Press();
    CHECK(running == std::vector{false, true});
    CHECK(Shown() == std::vector{Success, Success});
}

TEST_CASE_FIXTURE(Frame, "without a server name this computer's own time is written back") {
    UseServer("");
    Press();
    CHECK(ClockCalls() == Lines{"SetLocalDate 2004-03-05", "SetLocalTime 14:07:09"});
    CHECK(Shown().size() == 2);
}

TEST_CASE_FIXTURE(Frame, "with no source chosen the computer on the network is asked") {
    form.Find<toolkit::OptionButton>("optAtomUhr").SetValue(false);
    Press();
    CHECK(machine.journal.Calls("Socket.Connect").empty());
    CHECK(ClockCalls().size() == 2);
}

TEST_CASE_FIXTURE(Frame, "a server that does not answer is told of, once, and nothing is set") {
    UseServer("niemand");
    bool runs = true;
    machine.messages.WhileOpen("Fehler beim synchronisieren", [&] {
        runs = Runs() || Label() != "" || machine.forms.ScreenPointer() != toolkit::DefaultPointer;
    });
    Press();
    CHECK(Shown() == std::vector{ServerFailure});
    CHECK_FALSE(runs);
    CHECK(ClockCalls().empty());
    CHECK(Runs());
}

TEST_CASE_FIXTURE(Frame, "a server that tells the day 0 has not answered") {
    machine.network.SetTimeOf("\\\\alt", {.hours = 12, .day = 30, .month = 12, .year = 1899});
    UseServer("alt");
    Press();
    CHECK(Shown() == std::vector{ServerFailure});
    CHECK(ClockCalls().empty());
}

TEST_CASE_FIXTURE(Frame, "without the right to set the clock the failure is told") {
    machine.faults.FailAll("SetLocalDate", 70);
    UseServer("");
    bool atRest = false;
    machine.messages.WhileOpen(Title, [&] {
        atRest =
            !Runs() && Label() == "" && machine.forms.ScreenPointer() == toolkit::DefaultPointer;
    });
    Press();
    CHECK(Shown() == std::vector{NotDone("Zugriff verweigert [70]")});
    CHECK(atRest);
    CHECK(Runs());
    CHECK(ClockCalls() == Lines{"SetLocalDate 2004-03-05 -> failure 70"});
}

TEST_CASE_FIXTURE(Frame, "a failure after the date was set leaves the date set") {
    machine.faults.FailAll("SetLocalTime", 70);
    machine.network.SetTimeOf("\\\\zeit", Evening);
    UseServer("zeit");
    Press();
    CHECK(Shown() == std::vector{NotDone("Zugriff verweigert [70]")});
    CHECK(machine.clock.now.year == 2026);
    CHECK(machine.clock.now.hour == 14);
}

TEST_CASE_FIXTURE(Frame, "a server's nonsense is told as the failure that it is") {
    machine.network.SetTimeOf("\\\\wirr", {.hours = 99999, .day = 1, .month = 1, .year = 2004});
    UseServer("wirr");
    Press();
    CHECK(Shown() == std::vector{NotDone("Überlauf [6]")});
    CHECK(ClockCalls().empty());
}

TEST_CASE_FIXTURE(Frame, "a system without a network is told of in the time server's case too") {
    machine.faults.FailAll("Socket.Connect", 429);
    Press();
    CHECK(Shown() ==
          std::vector{NotDone("Objekterstellung durch ActiveX-Komponente nicht möglich [429]")});
    CHECK(Runs());
    CHECK(Label() == "");
}

TEST_CASE_FIXTURE(Frame, "a message that cannot be shown keeps neither the clock nor the pointer") {
    machine.faults.FailAll("MessageBox", 7);
    Press();
    CHECK(Shown().empty());
    CHECK(Runs());
    CHECK(Label() == "");
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}
