// The synchronisation of the clock through the real windows and the real socket. The program under
// test is the real one, but it can neither set a clock nor reach anything beyond this computer.
#include <doctest/doctest.h>

#include "endtoend/pages.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"
#include "support/timeserver.h"

namespace endtoend {
namespace {

using contract::ServerAnswer;
using contract::TimeServer;
using End = ServerAnswer::End;

constexpr char UpdatedTitle[] = "Einstellungen aktualisiert";
constexpr char FailedTitle[] = "Fehler beim synchronisieren";
constexpr char Success[] = "Datum und Uhrzeit erfolgreich synchronisiert!";

// 2004-03-05 13:07:09.
const std::string Answer = "\xC3\xF2\xF9\xFD";

struct ClocklessPlace : Workplace {
    explicit ClocklessPlace(std::uint16_t port) {
        WriteFile(Executable(), ReadFile(OwnFolder() + "\\clockless.exe"));
        WriteFile(Executable() + ".port", std::to_string(port));
    }
};

struct ClocklessProgram {
    ClocklessPlace workplace;
    OpenProgram program{workplace};

    explicit ClocklessProgram(std::uint16_t port = 1) : workplace(port) {
        program.OpenTab(UtilitiesPage);
    }

    void Press() const { program.Click("cmdSynchronizeDateTime"); }
    void UseServer(const std::string& name) const {
        program.Click("optSynServer");
        Until("the server is chosen", [&] { return program.Checked("optSynServer"); });
        program.SetText("txtSyncServer", name);
    }
    std::string Asked() const { return ReadFile(workplace.Executable() + ".clock"); }
    void WaitAsked(const std::string& record) const {
        Until("the clock is asked for: " + record, [&] { return Asked() == record; });
    }
    std::string Label() const { return program.Text("lblDateAndTime"); }
};

std::string Now() {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    wchar_t date[80] = L"";
    wchar_t time[80] = L"";
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    GetDateFormatW(german, 0, &now, L"dddd, dd. MMMM yyyy", date, 80);
    GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &now, nullptr, time, 80);
    return platform::win32::FromWide(date) + ", " + platform::win32::FromWide(time) + " Uhr";
}

void WaitForClock(const ClocklessProgram& clockless) {
    Until("date and time run", [&] { return clockless.Label() == Now(); });
}

}  // namespace

TEST_CASE("the frame shows the running date and time") {
    const ClocklessProgram clockless;
    WaitForClock(clockless);
    CHECK(clockless.program.Checked("optAtomUhr"));
    CHECK(clockless.Asked() == "");
}

TEST_CASE("the time server's answer sets the clock behind the box that told of success") {
    const TimeServer server({{{"\xC3\xF2", "\xF9\xFD"}, End::Closes, 700}});
    const ClocklessProgram clockless(server.Port());
    clockless.Press();
    const MessageBox box = clockless.program.WaitBox(UpdatedTitle);
    CHECK(box.text == Success);
    CHECK(clockless.Asked() == "");
    CHECK(clockless.Label() == "");
    clockless.WaitAsked("SetSystemTime 2004-03-05 13:07:09\n");
    CHECK(clockless.program.Box().window == box.window);
    CHECK(clockless.Label() == "");
    clockless.program.Answer(UpdatedTitle, IDOK);
    WaitForClock(clockless);
    CHECK(clockless.program.Box().window == nullptr);
    clockless.program.CloseAndWait();
    CHECK(clockless.workplace.Log() == "");
}

TEST_CASE(
    "a server that refuses, or answers with five bytes, has been told a success all the same") {
    for (bool refuses : {true, false}) {
        CAPTURE(refuses);
        const TimeServer server({{{Answer + "\x01"}}});
        const ClocklessProgram clockless(refuses ? 1 : server.Port());
        clockless.Press();
        CHECK(clockless.program.Answer(UpdatedTitle, IDOK).text == Success);
        WaitForClock(clockless);
        Sleep(300);
        CHECK(clockless.Asked() == "");
        CHECK(clockless.program.Box().window == nullptr);
        clockless.program.CloseAndWait();
        CHECK(clockless.workplace.Log() == "");
    }
}

TEST_CASE("a second press drops the answer that is pending") {
    const TimeServer server({{{"\xFF\xFF"}, End::Stays}, {{Answer}, End::Closes, 200}});
    const ClocklessProgram clockless(server.Port());
    for (int press = 0; press < 2; ++press) {
        clockless.Press();
        clockless.program.Answer(UpdatedTitle, IDOK);
    }
    clockless.WaitAsked("SetSystemTime 2004-03-05 13:07:09\n");
}

TEST_CASE("the computer on the network sets date and time, and success is told twice") {
    const ClocklessProgram clockless;
    clockless.UseServer("zeit");
    clockless.Press();
    const std::string asked =
        "NetRemoteTOD \\\\zeit\nSetLocalDate 2005-01-01 04:05:09\n"
        "SetLocalTime 2005-01-01 04:05:09\n";
    CHECK(clockless.program.WaitBox(UpdatedTitle).text == Success);
    CHECK(clockless.Asked() == asked);
    CHECK(clockless.program.Answer(UpdatedTitle, IDOK).text == Success);
    CHECK(clockless.program.Answer(UpdatedTitle, IDOK).text == Success);
    CHECK(clockless.Asked() == asked);
    WaitForClock(clockless);
    CHECK(clockless.program.Box().window == nullptr);
}

TEST_CASE("a computer that does not answer is told of") {
    const ClocklessProgram clockless;
    clockless.UseServer("  \\\\niemand ");
    clockless.Press();
    CHECK(clockless.program.Answer(FailedTitle, IDOK).text ==
          "Während der Verbindung zum Server ist ein Fehler aufgetreten. Überprüfen Sie den "
          "Servernamen und ob der Server aktiv ist. Sprechen sie ggf. mit dem Administrator.");
    CHECK(clockless.Asked() == "NetRemoteTOD \\\\niemand\n");
    WaitForClock(clockless);
}

TEST_CASE("a clock that may not be set is told of with its failure, and not logged") {
    const ClocklessProgram clockless;
    clockless.UseServer("damals");
    clockless.Press();
    CHECK(clockless.program.Answer(UpdatedTitle, IDOK).text ==
          "Datum und Uhrzeit NICHT erfolgreich synchronisiert!\r\n\r\n"
          "Beschreibung: Zugriff verweigert [70]");
    CHECK(clockless.Asked() == "NetRemoteTOD \\\\damals\nSetLocalDate 1981-01-01 04:05:09\n");
    WaitForClock(clockless);
    clockless.program.CloseAndWait();
    CHECK(clockless.workplace.Log() == "");
}

TEST_CASE("the next start has the time server chosen again and the name still there") {
    const ClocklessPlace workplace(1);
    {
        const OpenProgram program(workplace);
        program.OpenTab(UtilitiesPage);
        program.Click("optSynServer");
        Until("the server is chosen", [&] { return program.Checked("optSynServer"); });
        program.SetText("txtSyncServer", "\\\\Uhrenstübchen");
        program.CloseAndWait();
    }
    const OpenProgram program(workplace);
    CHECK(program.Checked("optAtomUhr"));
    CHECK_FALSE(program.Checked("optSynServer"));
    CHECK(program.Text("txtSyncServer") == "\\\\Uhrenstübchen");
}

}  // namespace endtoend
