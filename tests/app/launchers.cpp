// The launchers as the whole program wires them.
#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using toolkit::Label;

namespace {

struct Fixture : Program {
    Fixture() { REQUIRE(Start()); }

    Label& Find(const char* name) { return form->Find<Label>(name); }
    bool IsRed(const char* name) { return Find(name).TextColour() == toolkit::Red; }

    std::string LastTitle() const {
        const auto& shown = machine.messages.Shown();
        return shown.empty() ? "" : shown.back().title;
    }
};

}  // namespace

TEST_CASE("the red of a launcher ends with the next move over what surrounds it") {
    Fixture f;
    f.Find("lblSystem").MouseMoved();
    REQUIRE(f.IsRed("lblSystem"));
    SUBCASE("the form") {
        f.form->MouseMoved();
    }
    SUBCASE("the frame") {
        f.form->Find<toolkit::Frame>("fraPrograms").MouseMoved();
    }
    SUBCASE("the heading") {
        f.Find("lblUtilities").MouseMoved();
    }
    SUBCASE("another launcher") {
        f.Find("lblCMD").MouseMoved();
        CHECK(f.IsRed("lblCMD"));
    }
    SUBCASE("a click on another tab") {
        f.form->Find<toolkit::TabStrip>("SSTab1").SetTab(3);
    }
    CHECK(f.Find("lblSystem").TextColour() == toolkit::Black);
}

TEST_CASE("a move over the heading of another page leaves the red as it is") {
    Fixture f;
    f.Find("lblSystem").MouseMoved();
    f.Find("lblShortcuts").MouseMoved();
    CHECK(f.IsRed("lblSystem"));
}

TEST_CASE("a launcher without its program ends in the log under the name LoadExtern") {
    Fixture f;
    f.machine.faults.FailOn("C:\\WINDOWS\\System32\\taskmgr.exe", 53);
    f.Find("lblTaskManager").Click();
    const auto log = f.machine.files.Content(LogPath);
    REQUIRE(log.has_value());
    CHECK(log->find("Number: 53\r\n") != std::string::npos);
    CHECK(log->find("Procedure: LoadExtern\r\n") != std::string::npos);
    CHECK(f.LastTitle() == "Fehler 53");
}

TEST_CASE("system properties that the shell does not have end in the log under their own name") {
    Fixture f;
    f.machine.faults.FailAll("shell32#178", 453);
    f.Find("lblSystem").Click();
    const auto log = f.machine.files.Content(LogPath);
    REQUIRE(log.has_value());
    CHECK(log->find("Procedure: lblSystem_Click\r\n") != std::string::npos);
}

TEST_CASE("a console that the shell does not find leaves neither log nor message") {
    Fixture f;
    f.machine.faults.FailAll("ShellExecuteA", 2);
    f.Find("lblGeräteManager").Click();
    f.Find("lblKomponentendienste").Click();
    CHECK_FALSE(f.machine.files.Content(LogPath).has_value());
    CHECK(f.machine.messages.Shown().empty());
    CHECK(f.machine.journal.Calls("ShellExecuteA").size() == 2);
}

TEST_CASE("Hilfe opens the help beside the program") {
    Fixture f;
    f.Press("cmdHilfe");
    REQUIRE(f.machine.processes.launched.size() == 1);
    CHECK(f.machine.processes.launched.front().commandLine ==
          "rundll32.exe url.dll,FileProtocolHandler C:\\Programme\\Quillmore\\Anleitung.mht");
}

TEST_CASE("a help that cannot be opened leaves no log") {
    Fixture f;
    f.machine.faults.FailAll("Start", 53);
    f.Press("cmdHilfe");
    CHECK(f.LastTitle() == "Quillmore Hilfe");
    CHECK_FALSE(f.machine.files.Content(LogPath).has_value());
}

TEST_CASE("the start leaves the launchers in the system's colour and starts none") {
    Fixture f;
    CHECK(f.Find("lblCMD").TextColour() == std::nullopt);
    CHECK(f.machine.processes.launched.empty());
}
