#include "utilities/systemfacts.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using namespace utilities;

TEST_CASE("a user's name of five letters has five characters and no NUL") {
    Machine machine;
    machine.facts.userName = "Paula";
    const std::string name = GetCurrentUserName(machine.facts);
    CHECK(name == "Paula");
    CHECK(name.size() == 5);
}

TEST_CASE("a user's name keeps its umlauts and blanks") {
    Machine machine;
    machine.facts.userName = "Jörg von Übel";
    CHECK(GetCurrentUserName(machine.facts) == "Jörg von Übel");
}

TEST_CASE("a user's name that fills the buffer up to the NUL is told, a longer one is not") {
    Machine machine;
    machine.facts.userName = std::string(254, 'a');
    CHECK(GetCurrentUserName(machine.facts) == std::string(254, 'a'));
    machine.facts.userName = std::string(255, 'a');
    CHECK(GetCurrentUserName(machine.facts).empty());
}

TEST_CASE("a user's name that the system does not tell is empty") {
    Machine machine;
    machine.faults.FailAll("GetUserNameA", 5);
    CHECK(GetCurrentUserName(machine.facts).empty());
}

TEST_CASE("a special folder is found by its number") {
    Machine machine;
    CHECK(GetSpecialFolderPath(machine.shell, 8) ==
          "C:\\Dokumente und Einstellungen\\Besitzer\\Recent");
    machine.shell.specialFolders[8] = "D:\\Zuletzt";
    CHECK(GetSpecialFolderPath(machine.shell, 8) == "D:\\Zuletzt");
}

TEST_CASE("a special folder without a path, an unknown number and a failing call are empty") {
    Machine machine;
    constexpr int controlPanel = 3;
    CHECK(GetSpecialFolderPath(machine.shell, controlPanel).empty());
    CHECK(GetSpecialFolderPath(machine.shell, 4711).empty());
    CHECK(GetSpecialFolderPath(machine.shell, -1).empty());
    machine.faults.FailAll("SHGetSpecialFolderLocation", 5);
    CHECK(GetSpecialFolderPath(machine.shell, 8).empty());
}

TEST_CASE("the directory for temporary files ends in one backslash however it is told") {
    Machine machine;
    machine.facts.tempPath = "C:\\Temp\\";
    CHECK(GetTempDirectory(machine.facts) == "C:\\Temp\\");
    machine.facts.tempPath = "C:\\Temp";
    CHECK(GetTempDirectory(machine.facts) == "C:\\Temp\\");
    machine.facts.tempPath = "C:\\";
    CHECK(GetTempDirectory(machine.facts) == "C:\\");
}

TEST_CASE("a directory for temporary files that the system does not tell is not the root") {
    Machine machine;
    machine.faults.FailAll("GetTempPathA", 5);
    CHECK(GetTempDirectory(machine.facts).empty());
    machine.faults.Clear();
    machine.facts.tempPath = "C:\\" + std::string(252, 't');
    CHECK(GetTempDirectory(machine.facts).empty());
}
