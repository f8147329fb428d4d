#include "system/specialfolders.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using namespace sys;

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
    machine.systemFacts.tempPath = "C:\\Temp\\";
    CHECK(GetTempDirectory(machine.systemFacts) == "C:\\Temp\\");
    machine.systemFacts.tempPath = "C:\\Temp";
    CHECK(GetTempDirectory(machine.systemFacts) == "C:\\Temp\\");
    machine.systemFacts.tempPath = "C:\\";
    CHECK(GetTempDirectory(machine.systemFacts) == "C:\\");
}

TEST_CASE("a directory for temporary files that the system does not tell is not the root") {
    Machine machine;
    machine.faults.FailAll("GetTempPathA", 5);
    CHECK(GetTempDirectory(machine.systemFacts).empty());
    machine.faults.Clear();
    machine.systemFacts.tempPath = "C:\\" + std::string(252, 't');
    CHECK(GetTempDirectory(machine.systemFacts).empty());
}
