#include "platform/systemfacts.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

TEST_CASE("the directories are full paths without a backslash behind, the system's below Windows") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().systemFacts;
    const std::string windows = facts.WindowsDirectory();
    const std::string system = facts.SystemDirectory();
    REQUIRE(windows.size() > 3);
    CHECK(windows.substr(1, 2) == ":\\");
    CHECK(windows.back() != '\\');
    CHECK(system.substr(0, windows.size() + 1) == windows + "\\");
    CHECK(system.back() != '\\');
}

TEST_CASE("the user has a name, and no NUL is in it") {
    contract::TestMachine machine;
    const std::string name = machine.Services().systemFacts.UserName();
    CHECK(name == machine.ExpectedUser());
    CHECK(name.find('\0') == std::string::npos);
}

TEST_CASE("the path for temporary files is a full one with a backslash behind") {
    contract::TestMachine machine;
    const std::string path = machine.Services().systemFacts.TempPath();
    REQUIRE(path.size() > 3);
    CHECK(path.substr(1, 2) == ":\\");
    CHECK(path.back() == '\\');
    CHECK(path.find('\0') == std::string::npos);
}

TEST_CASE("the drive of Windows has space, and no more is free than there is") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().systemFacts;
    const auto space = facts.Space(facts.WindowsDirectory().substr(0, 3));
    CHECK(space.total > 0);
    CHECK(space.free <= space.total);
    CHECK(space.freeToUser <= space.free);
    CHECK(facts.Space(facts.WindowsDirectory()).total == space.total);
}

// As a list of drives names them.
TEST_CASE("a drive's space is also told by its letter with a blank behind") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().systemFacts;
    const std::string drive = facts.WindowsDirectory().substr(0, 2);
    CHECK(facts.Space(drive + " ").total == facts.Space(drive + "\\").total);
}

TEST_CASE("a drive that is not there and a path that is none have no space") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().systemFacts;
    CHECK(facts.Space(machine.MissingDrive() + "\\") == platform::DiskSpace{});
    CHECK(facts.Space("?") == platform::DiskSpace{});
}
