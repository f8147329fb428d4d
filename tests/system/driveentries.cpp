#include "system/driveentries.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::DriveKind;
using platform::simulated::Machine;
using sys::DriveEntries;
using Entries = std::vector<std::string>;

TEST_CASE("drives are listed by small letters, disks with the label that they have") {
    Machine machine;
    machine.systemInformation.drives = {
        {"A:\\", DriveKind::Removable},   {"C:\\", DriveKind::Fixed},
        {"D:\\", DriveKind::OpticalDisc}, {"E:\\", DriveKind::Fixed},
        {"F:\\", DriveKind::MemoryDisk},  {"N:\\", DriveKind::Network},
        {"X:\\", DriveKind::Unknown}};
    for (const char* root : {"A:\\", "C:\\", "E:\\", "F:\\", "N:\\", "X:\\"}) {
        machine.systemInformation.volumes[root].label = "Größe";
    }
    machine.systemInformation.volumes["E:\\"].label = "";
    CHECK(DriveEntries(machine.systemInformation) ==
          Entries{"a:", "c: [Größe]", "d:", "e:", "f: [Größe]", "n:", "x:"});
}

TEST_CASE("drives that might keep the user waiting are not asked for their label") {
    Machine machine;
    machine.systemInformation.drives = {{"A:\\", DriveKind::Removable},
                                        {"N:\\", DriveKind::Network}};
    DriveEntries(machine.systemInformation);
    CHECK(machine.journal.Calls("GetVolumeInformationA").empty());
}

TEST_CASE("a disk whose label the system does not tell is listed by its letter") {
    Machine machine;
    machine.faults.FailAll("GetVolumeInformationA", 5);
    CHECK(DriveEntries(machine.systemInformation) == Entries{"a:", "c:", "d:"});
}

TEST_CASE("a system that tells no drives has an empty list") {
    Machine machine;
    machine.faults.FailAll("GetLogicalDrives", 5);
    CHECK(DriveEntries(machine.systemInformation).empty());
}
