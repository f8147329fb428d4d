#include "platform/systeminformation.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "contract/machine.h"

namespace {

struct Facts {
    contract::TestMachine machine;
    platform::SystemInformation& information = machine.Services().systemInformation;
};

}  // namespace

TEST_CASE_FIXTURE(Facts, "the service pack is told by its number") {
    const std::string pack = information.ServicePack().value_or("absent");
    // The first XP has none.
    CHECK((pack.starts_with("Service Pack ") || (machine.IsRealXp() && pack.empty())));
}

TEST_CASE_FIXTURE(Facts, "there is at least one processor, and memory of which some is free") {
    CHECK(information.ProcessorCount().value_or(0) >= 1);
    const auto memory = information.Memory();
    REQUIRE(memory);
    CHECK(memory->total >= 64ull << 20);
    CHECK(memory->free > 0);
    CHECK(memory->free < memory->total);
}

TEST_CASE_FIXTURE(Facts, "the drives stand in the order of their letters, the disk C: among them") {
    const auto drives = information.Drives();
    CHECK(std::is_sorted(drives.begin(), drives.end(), [](const auto& left, const auto& right) {
        return left.root < right.root;
    }));
    const auto disk = std::find_if(drives.begin(), drives.end(),
                                   [](const auto& drive) { return drive.root == "C:\\"; });
    REQUIRE(disk != drives.end());
    CHECK(disk->kind == platform::DriveKind::Fixed);
}

TEST_CASE_FIXTURE(Facts, "the disk has a file system, a size and no more free than that") {
    const platform::Volume disk = information.VolumeOn("C:\\");
    const std::string fileSystem = disk.fileSystem.value_or("");
    CHECK((fileSystem == "NTFS" || (machine.IsRealXp() && fileSystem == "FAT32")));
    REQUIRE(disk.size);
    REQUIRE(disk.free);
    CHECK(*disk.size > 0);
    CHECK(*disk.free <= *disk.size);
    CHECK(disk.label);
}

TEST_CASE_FIXTURE(Facts, "of a drive that is not there nothing is told") {
    const platform::Volume none = information.VolumeOn(machine.MissingDrive() + "\\");
    CHECK_FALSE(none.fileSystem);
    CHECK_FALSE(none.size);
    CHECK_FALSE(none.free);
    CHECK_FALSE(none.label);
}

TEST_CASE_FIXTURE(Facts, "the screen has a size and at least 256 colours") {
    const auto screen = information.MainScreen();
    REQUIRE(screen);
    CHECK(screen->width >= 640);
    CHECK(screen->height >= 480);
    CHECK(screen->colourDepth >= 8);
}

TEST_CASE_FIXTURE(Facts, "the computer has a name") {
    CHECK_FALSE(information.ComputerName().value_or("").empty());
}
