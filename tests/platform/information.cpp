// The services behind the dialogs about the machine and about the program.
#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using Lines = std::vector<std::string>;

namespace {

struct Information {
    platform::simulated::Machine machine;
    platform::SystemInformation& information = machine.services.systemInformation;
    const Lines& lines = machine.journal.Lines();
};

}  // namespace

TEST_CASE_FIXTURE(Information, "what a call does not tell is no value, and the others still tell") {
    machine.faults.FailAll("GetComputerNameA", 5);
    CHECK_FALSE(information.ComputerName());
    CHECK(information.ProcessorCount() == 1);
    CHECK(lines == Lines{"GetComputerNameA", "GetSystemInfo"});
}

TEST_CASE_FIXTURE(Information, "the two questions about a volume fail each by itself") {
    SUBCASE("the file system") {
        machine.faults.FailAll("GetVolumeInformationA", 5);
        CHECK_FALSE(information.VolumeOn("C:\\").fileSystem);
        CHECK_FALSE(information.VolumeOn("C:\\").label);
        CHECK(information.VolumeOn("C:\\").size == 40007729152);
    }
    SUBCASE("the space") {
        machine.faults.FailAll("GetDiskFreeSpaceExA", 5);
        CHECK(information.VolumeOn("C:\\").fileSystem == "NTFS");
        CHECK_FALSE(information.VolumeOn("C:\\").size);
        CHECK_FALSE(information.VolumeOn("C:\\").free);
    }
    SUBCASE("both, on one drive") {
        machine.faults.FailOn("C:\\", 21);
        CHECK_FALSE(information.VolumeOn("C:\\").fileSystem);
        CHECK_FALSE(information.VolumeOn("C:\\").size);
    }
}

TEST_CASE_FIXTURE(Information, "drive, memory and user are the same whichever service is asked") {
    machine.systemFacts.SetSpace('C', {300, 1000, 400});
    CHECK(information.VolumeOn("C:\\").size == 1000);
    CHECK(information.VolumeOn("C:\\").free == 300);
    machine.systemInformation.volumes["C:\\"].size = 2000;
    CHECK(machine.systemFacts.Space("C:\\") == platform::DiskSpace{300, 2000, 400});

    machine.memory.physical.total = 5000000000;
    CHECK(information.Memory().value().total == 5000000000);
    CHECK(machine.memory.TotalPhysical() == "5000000000");
    CHECK(machine.memory.PhysicalBytes() == -1);

    machine.systemFacts.userName = "Gast";
    machine.systemInformation.computerName = "PC-2";
    platform::UserEnumeration enumeration;
    machine.workstation.EnumerateUsers("", enumeration);
    REQUIRE(enumeration.users.size() == 1);
    CHECK(enumeration.users[0].wkui1_username == "Gast");
    CHECK(enumeration.users[0].wkui1_logon_domain == "PC-2");
}

TEST_CASE_FIXTURE(Information, "drives that are not told are none") {
    CHECK(information.Drives().size() == 3);
    machine.faults.FailAll("GetLogicalDrives", 5);
    CHECK(information.Drives().empty());
}

TEST_CASE_FIXTURE(Information, "the clipboard keeps what it held when it is refused") {
    CHECK(machine.services.clipboard.SetText("eins"));
    machine.faults.FailAll("SetClipboardData", 5);
    CHECK_FALSE(machine.services.clipboard.SetText("zwei"));
    CHECK(machine.clipboard.text == "eins");
    CHECK(lines == Lines{"SetClipboardData \"eins\" -> 1", "SetClipboardData \"zwei\" -> 0"});
}

TEST_CASE_FIXTURE(Information,
                  "a browser that cannot be created fails with the platform's number") {
    machine.faults.FailOn("InternetExplorer", 5);
    CHECK(FailureOf([&] { machine.services.browser.CreateInternetExplorer(); }) ==
          runtime::CannotCreateObject);
    CHECK(lines == Lines{"CreateObject InternetExplorer -> failure 429"});
}

TEST_CASE_FIXTURE(Information, "a form's transparency is journalled, its caption is not") {
    toolkit::Form form(machine.forms, "frmAbout", "", {});
    form.SetLayerAttributes({7, 2});
    form.Load();
    form.SetCaption("Info");
    form.MakeLayered();
    form.SetLayerAttributes({9, 2});
    CHECK(lines == Lines{"OpenForm frmAbout", "SetWindowLongA frmAbout -20 +0x80000",
                         "SetLayeredWindowAttributes frmAbout 0 9 2"});
}
