#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;

namespace {

// 2004-03-05 13:07:09, if no moment of connecting were added.
const std::string Answer = "\xC3\xF2\xF9\xFD";

const ShownMessage NoConnection{
    "DFUE Verbindung kann nicht hergestellt werden",
    "Für diese Funktion muss eine Internetverbindung bestehen!\r\nBitte stellen Sie eine "
    "Verbindung her und starten die Funktion erneut.",
    48};
const ShownMessage LaterAgain{
    "Fehler beim synchronisieren",
    "Während der Verbindung ist ein fehler aufgetreten. Versuchen Sie es später erneut.", 48};

// With a request made, its connection standing and no answer come: 14:07:09 and a half.
struct Connected : Frame {
    Connected() {
        machine.socket.Serve(37, {{}, ServerAnswer::End::Stays});
        Press();
        machine.clock.Advance(500);
        machine.socket.RaiseAll();
        machine.network.dialUpConnections = 1;
        machine.forms.SetScreenPointer(toolkit::Hourglass);
        synchronization.Stop_tmrUhrzeit();
        form.Find<toolkit::Label>("lblDateAndTime").SetCaption("angefordert");
        machine.journal.Clear();
        told = Shown().size();
    }
    std::size_t told = 0;

    void Apply(const std::string& answer) { synchronization.ApplyTimeAnswerChecked(answer); }
};

}  // namespace

TEST_CASE_FIXTURE(Connected, "the seconds of the day of connecting are added to the answer") {
    Apply(Answer);
    // 50829.5 seconds, and a half goes to the even neighbour.
    CHECK(lines == Lines{"SetSystemTime 2004-03-06 03:14:19", "RasEnumConnectionsA -> 0 1",
                         "Pointer 0", "Label \"\"",
                         "MessageBox \"Einstellungen aktualisiert\" 64 \"Datum und Uhrzeit "
                         "erfolgreich synchronisiert!\" -> 1",
                         "SetTimer 1000 -> #3"});
    CHECK(Shown().back() == Success);
    CHECK(Label() == "");
}

TEST_CASE_FIXTURE(Frame, "half a second goes down where the even neighbour is below") {
    machine.clock.now.second = 8;
    machine.socket.Serve(37, {{}, ServerAnswer::End::Stays});
    Press();
    machine.clock.Advance(500);
    machine.socket.RaiseAll();
    machine.network.dialUpConnections = 1;
    synchronization.ApplyTimeAnswerChecked(Answer);
    CHECK(ClockCalls() == Lines{"SetSystemTime 2004-03-06 03:14:17"});
}

TEST_CASE_FIXTURE(Connected, "without a dial-up connection the clock is set and a warning shown") {
    machine.network.dialUpConnections = 0;
    bool hourglass = false;
    machine.messages.WhileOpen(NoConnection.title, [&] {
        hourglass = machine.forms.ScreenPointer() == toolkit::Hourglass;
    });
    CHECK_FALSE(Runs());
    Apply(Answer);
    CHECK(ClockCalls().size() == 1);
    CHECK(Shown().size() == told + 1);
    CHECK(Shown().back() == NoConnection);
    CHECK(hourglass);
    CHECK(Label() == "");
    CHECK(machine.journal.Calls("Label") == Lines{"Label \"\""});
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
    CHECK(Runs());
}

TEST_CASE_FIXTURE(Connected, "an answer of the wrong length is not expected any more, in silence") {
    Apply("\xC3\xF2\xF9 ");
    CHECK(lines.empty());
    CHECK(Shown().size() == told);
    CHECK(Label() == "angefordert");
    CHECK_FALSE(Runs());
    Apply(Answer);
    CHECK(ClockCalls().size() == 1);
    CHECK(Shown().back() == LaterAgain);
    // Emptied, but not painted at once.
    CHECK(Label() == "");
    CHECK(machine.journal.Calls("Label").empty());
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
    CHECK(Runs());
}

TEST_CASE_FIXTURE(Frame, "an answer that nobody asked for is told as a failure, after being used") {
    machine.network.dialUpConnections = 1;
    synchronization.ApplyTimeAnswerChecked(Answer);
    CHECK(ClockCalls() == Lines{"SetSystemTime 2004-03-05 13:07:09"});
    CHECK(Shown() == std::vector{LaterAgain});
}

TEST_CASE_FIXTURE(Connected, "a moment out of reach passes out as the overflow that it is") {
    CHECK(FailureOf([&] { Apply(std::string(4, '\0')); }) == 6);
    CHECK(ClockCalls().empty());
}

TEST_CASE_FIXTURE(Connected, "nothing that the program does comes here") {
    machine.socket.Close();
    machine.network.dialUpConnections = 0;
    machine.socket.Serve(37, {{Answer}});
    Press();
    machine.socket.RaiseAll();
    CHECK(ClockCalls() == Lines{"SetSystemTime 2004-03-05 13:07:09"});
    CHECK(machine.journal.Calls("RasEnumConnectionsA").empty());
}
