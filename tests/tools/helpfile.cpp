#include "tools/helpfile.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using Launched = std::vector<platform::simulated::Processes::Launched>;

TEST_CASE("the help beside the program is opened by the system, with a hidden window") {
    Machine machine;
    tools::ShowHelp(machine.services);
    CHECK(machine.processes.launched == Launched{{"rundll32.exe url.dll,FileProtocolHandler "
                                                  "C:\\Programme\\Quillmore\\Anleitung.mht",
                                                  0}});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE("the path of the help has backslashes only and no quotes") {
    Machine machine;
    machine.program.directory = "D:\\Meine Programme";
    tools::ShowHelp(machine.services);
    REQUIRE(machine.processes.launched.size() == 1);
    CHECK(machine.processes.launched.front().commandLine ==
          "rundll32.exe url.dll,FileProtocolHandler D:\\Meine Programme\\Anleitung.mht");
}

TEST_CASE("a help that cannot be opened ends in a message with the reason, and in no log") {
    Machine machine;
    machine.faults.FailOn(
        "rundll32.exe url.dll,FileProtocolHandler C:\\Programme\\Quillmore\\Anleitung.mht", 53);
    tools::ShowHelp(machine.services);
    REQUIRE(machine.messages.Shown().size() == 1);
    const auto& shown = machine.messages.Shown().front();
    CHECK(shown.title == "Quillmore Hilfe");
    CHECK(shown.style == 16);
    CHECK(shown.text == "Die Hilfe kann nicht aufgerufen werden: Datei nicht gefunden");
}
