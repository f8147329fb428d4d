#include "app/sessionactions.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "app/program.h"
#include "support/failureof.h"

using namespace app_test;
using platform::simulated::ShownMessage;
using toolkit::WindowState;
using Requests = std::vector<platform::simulated::Session::Request>;

namespace {

// One end of the session with the words of its question.
struct End {
    void (app::frmMain::*run)();
    const char* button;
    const char* title;
    const char* question;
    std::int32_t action;
};

constexpr End Ends[] = {
    {&app::frmMain::DoShutdown, "cmdShutdown(0)", "Computer herunterfahren",
     "Soll der Computer wirklich heruntergefahren werden?", 8},
    {&app::frmMain::DoReboot, "cmdShutdown(1)", "Computer neu starten",
     "Soll der Computer wirklich neu gestartet werden?", 2},
    {&app::frmMain::DoLogoff, "cmdShutdown(2)", "Benutzer abmelden",
     "Soll der aktuelle Benutzer wirklich abgemeldet werden?", 4},
};

struct Started : Program {
    Started() {
        REQUIRE(Start());
        machine.journal.Clear();
    }
    bool Run(const End& end) {
        return Ends([&] { (form.get()->*end.run)(); });
    }
    // Where the journal's first line of that call stands.
    std::ptrdiff_t LineOf(const std::string& call) const {
        const auto& lines = machine.journal.Lines();
        return std::find_if(lines.begin(), lines.end(),
                            [&](const auto& line) { return line.rfind(call, 0) == 0; }) -
               lines.begin();
    }
};

}  // namespace

TEST_CASE("each end of the session asks with its own words, then asks the system unforced") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.machine.messages.Answer(end.title, 6);
        CHECK(program.Run(end));
        CHECK(program.machine.messages.Shown() ==
              std::vector{ShownMessage{end.title, end.question, 36}});
        CHECK(program.machine.session.requests == Requests{{end.action, 0}});
    }
}

TEST_CASE("the buttons end the session by the procedures of their kind") {
    for (const End& end : Ends) {
        CAPTURE(end.button);
        Started program;
        program.machine.messages.Answer(end.title, 6);
        CHECK(program.Ends([&] { program.Press(end.button); }));
        CHECK(program.machine.session.requests == Requests{{end.action, 0}});
    }
}

TEST_CASE("No to the question changes nothing at all") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.Check("chkForceReboot").SetValue(1);
        program.machine.journal.Clear();
        program.machine.messages.Answer(end.title, 7);
        CHECK_FALSE(program.Run(end));
        CHECK(program.machine.journal.Count() == 1);
        CHECK(program.form->Visible());
        CHECK(program.form->Loaded());
    }
}

TEST_CASE("the box 'Neustart ohne Nachfrage' leaves out the question of all three") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.Check("chkRebootQuestion").SetValue(1);
        CHECK(program.Run(end));
        CHECK(program.machine.messages.Shown().empty());
        CHECK(program.machine.session.requests == Requests{{end.action, 0}});
    }
}

TEST_CASE("only the value 0 of the question's box asks, grey does not") {
    Started program;
    program.Check("chkRebootQuestion").SetValue(2);
    CHECK(program.Run(Ends[1]));
    CHECK(program.machine.messages.Shown().empty());
}

TEST_CASE("the box 'Neustart erzwingen' forces all three") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.Check("chkForceReboot").SetValue(1);
        program.machine.messages.Answer(end.title, 6);
        CHECK(program.Run(end));
        CHECK(program.machine.session.requests == Requests{{end.action, 1}});
    }
}

TEST_CASE("a grey force box does not force") {
    Started program;
    program.Check("chkForceReboot").SetValue(2);
    program.machine.messages.Answer("Benutzer abmelden", 6);
    CHECK(program.Run(Ends[2]));
    CHECK(program.machine.session.requests == Requests{{4, 0}});
}

TEST_CASE("the force box counts as it stands when the question has been answered") {
    Started program;
    program.machine.messages.WhileOpen("Computer neu starten",
                                       [&] { program.Check("chkForceReboot").SetValue(1); });
    program.machine.messages.Answer("Computer neu starten", 6);
    CHECK(program.Run(Ends[1]));
    CHECK(program.machine.session.requests == Requests{{2, 1}});
}

TEST_CASE("the question comes first, then the system's end, then all that closing stores") {
    Started program;
    program.machine.messages.Answer("Computer herunterfahren", 6);
    CHECK(program.Run(Ends[0]));
    const auto& lines = program.machine.journal.Lines();
    REQUIRE(lines.size() > 3);
    CHECK(lines[0].rfind("MessageBox \"Computer herunterfahren\"", 0) == 0);
    CHECK(lines[1] == "ExitSession 8 0");
    CHECK(program.LineOf("SaveSetting") > 1);
    CHECK(program.machine.journal.Calls("SaveSetting").size() == 12);
    CHECK(program.LineOf("CloseForm frmMain") > program.LineOf("SaveSetting"));
    CHECK(lines.back() == "End");
}

TEST_CASE("a session ended from the tray stores options and tab but no place") {
    Started program;
    program.Check("chkTrayIcon").SetValue(1);
    program.Check("chkRebootQuestion").SetValue(1);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK(program.Run(Ends[1]));
    CHECK(program.Stored("Left") == "absent");
    CHECK(program.Stored("ServerName") == "absent");
    CHECK(program.Stored("RebootQuestion") == "1");
    CHECK(program.Stored("Tab") == "0");
    CHECK_FALSE(program.machine.tray.shown);
}

TEST_CASE("a session object that fails is nobody's to handle and leaves the window open") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.Check("chkRebootQuestion").SetValue(1);
        program.machine.faults.FailAll("ExitSession", 429);
        CHECK(FailureOf([&] { (program.form.get()->*end.run)(); }) == 429);
        CHECK(program.form->Loaded());
        CHECK(program.machine.messages.Shown().empty());
        CHECK(program.machine.journal.Calls("SaveSetting").empty());
    }
}

TEST_CASE("a question that cannot be shown ends no session") {
    for (const End& end : Ends) {
        CAPTURE(end.title);
        Started program;
        program.machine.faults.FailAll("MessageBox", 7);
        CHECK_FALSE(program.Run(end));
        CHECK(program.machine.session.requests.empty());
        CHECK(program.form->Loaded());
    }
}
