#include <doctest/doctest.h>

#include <algorithm>
#include <cctype>

#include "contract/machine.h"
#include "platform/memory.h"
#include "platform/operatingsystem.h"
#include "platform/systemfacts.h"

TEST_CASE("the operating system is XP, build 2600") {
    contract::TestMachine machine;
    const auto facts = machine.Services().system.Facts();
    CHECK(facts.name == "Microsoft Windows XP");
    CHECK(facts.major == 5);
    CHECK(facts.minor == 1);
    CHECK(facts.build == 2600);
}

TEST_CASE("the directories are full paths without a backslash behind, the system's below Windows") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().facts;
    const std::string windows = facts.WindowsDirectory();
    const std::string system = facts.SystemDirectory();
    REQUIRE(windows.size() > 3);
    CHECK(windows.substr(1, 2) == ":\\");
    CHECK(windows.back() != '\\');
    CHECK(system.substr(0, windows.size() + 1) == windows + "\\");
    CHECK(system.back() != '\\');
}

TEST_CASE("the memory is told in decimal digits and is at least 64 megabytes") {
    contract::TestMachine machine;
    const std::string total = machine.Services().memory.TotalPhysical();
    REQUIRE(!total.empty());
    CHECK(std::all_of(total.begin(), total.end(), [](char c) { return std::isdigit(c) != 0; }));
    CHECK(std::stoull(total) >= 64ull << 20);
}

TEST_CASE("the user has a name, and no NUL is in it") {
    contract::TestMachine machine;
    const std::string name = machine.Services().facts.UserName();
    CHECK(name == "Besitzer");
    CHECK(name.find('\0') == std::string::npos);
}

TEST_CASE("the path for temporary files is a full one with a backslash behind") {
    contract::TestMachine machine;
    const std::string path = machine.Services().facts.TempPath();
    REQUIRE(path.size() > 3);
    CHECK(path.substr(1, 2) == ":\\");
    CHECK(path.back() == '\\');
    CHECK(path.find('\0') == std::string::npos);
}

TEST_CASE("the drive of Windows has space, and no more is free than there is") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().facts;
    const auto space = facts.Space(facts.WindowsDirectory().substr(0, 3));
    CHECK(space.total > 0);
    CHECK(space.free <= space.total);
    CHECK(space.freeToUser <= space.free);
    CHECK(facts.Space(facts.WindowsDirectory()).total == space.total);
}

// As a list of drives names them.
TEST_CASE("a drive's space is also told by its letter with a blank behind") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().facts;
    const std::string drive = facts.WindowsDirectory().substr(0, 2);
    CHECK(facts.Space(drive + " ").total == facts.Space(drive + "\\").total);
}

TEST_CASE("a drive that is not there and a path that is none have no space") {
    contract::TestMachine machine;
    const auto& facts = machine.Services().facts;
    CHECK(facts.Space("Q:\\") == platform::DiskSpace{});
    CHECK(facts.Space("?") == platform::DiskSpace{});
}
