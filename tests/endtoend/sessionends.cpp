// The ends of the session, asked for through the real windows and answered with Yes. The program
// under test is the real one without its way to end a session.
#include <doctest/doctest.h>

#include "endtoend/pages.h"
#include "endtoend/tools.h"
#include "endtoend/trayuser.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

struct SessionlessPlace : Workplace {
    SessionlessPlace() { WriteFile(Executable(), ReadFile(OwnFolder() + "\\sessionless.exe")); }
};

struct SessionlessProgram {
    SessionlessPlace workplace;
    OpenProgram program{workplace};
    TrayUser user{program};

    explicit SessionlessProgram(bool forced) {
        program.OpenTab(UtilitiesPage);
        program.SetChecked("chkForceReboot", forced);
    }

    // What the program asked of the session, when it has ended as it should.
    std::string Asked() const {
        CHECK(program.WaitForEnd() == 0);
        CHECK(workplace.Log() == "");
        CHECK(workplace.Stored("Options", "Tab") == std::to_string(UtilitiesPage));
        return ReadFile(workplace.Executable() + ".session");
    }
};

struct SessionEnd {
    const char* button;
    // In the tray menu.
    int item;
    const char* title;
    const char* question;
    std::string action;
};

const SessionEnd Ends[] = {
    {"cmdShutdown(0)", 5, "Computer herunterfahren",
     "Soll der Computer wirklich heruntergefahren werden?", "8"},
    {"cmdShutdown(1)", 4, "Computer neu starten",
     "Soll der Computer wirklich neu gestartet werden?", "2"},
    {"cmdShutdown(2)", 3, "Benutzer abmelden",
     "Soll der aktuelle Benutzer wirklich abgemeldet werden?", "4"},
};

TEST_CASE("each button of the session asks, and Yes ends session and program") {
    for (const SessionEnd& end : Ends) {
        CAPTURE(end.title);
        const SessionlessProgram sessionless(false);
        sessionless.program.Click(end.button);
        CHECK(sessionless.program.Answer(end.title, IDYES).text == end.question);
        CHECK(sessionless.Asked() == end.action + " 0\n");
    }
}

TEST_CASE("each item of the tray menu asks, and Yes ends session and program, forced if so set") {
    for (const SessionEnd& end : Ends) {
        CAPTURE(end.title);
        const SessionlessProgram sessionless(true);
        sessionless.user.Hide();
        sessionless.user.Choose(end.item);
        CHECK(sessionless.program.Answer(end.title, IDYES).text == end.question);
        CHECK(sessionless.Asked() == end.action + " 1\n");
    }
}

TEST_CASE("with the question left out a button ends session and program at once") {
    const SessionlessProgram sessionless(false);
    sessionless.program.SetChecked("chkRebootQuestion", true);
    sessionless.program.Click("cmdShutdown(1)");
    CHECK(sessionless.Asked() == "2 0\n");
}

}  // namespace
}  // namespace endtoend
