#include "system/systemdirectorypaths.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using sys::clsGetSystemDirectoryPaths;

TEST_CASE("the directories of Windows are told without a trailing backslash") {
    Machine machine;
    const clsGetSystemDirectoryPaths paths(machine.systemFacts);
    CHECK(paths.WindowsDirectory() == "C:\\WINDOWS");
    CHECK(paths.SystemDirectory() == "C:\\WINDOWS\\system32");
}

TEST_CASE("directories that the system does not tell are empty") {
    Machine machine;
    const clsGetSystemDirectoryPaths paths(machine.systemFacts);
    machine.faults.FailAll("GetWindowsDirectoryA", 5);
    CHECK(paths.WindowsDirectory().empty());
    CHECK(paths.SystemDirectory() == "C:\\WINDOWS\\system32");
    machine.faults.FailAll("GetSystemDirectoryA", 5);
    CHECK(paths.SystemDirectory().empty());
}
