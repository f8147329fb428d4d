#include <doctest/doctest.h>

#include "cleanup/fixture.h"
#include "platform/display.h"
#include "platform/machinewith.h"

using cleanup_test::Fixture;
using cleanup_test::Lines;
using platform::DriveKind;

TEST_CASE_FIXTURE(Fixture, "at the start the current drive is selected and its space is shown") {
    CHECK(frame.Drive() == "c: [SYSTEM]");
    CHECK(frame.lblGesamt.Caption() == "Gesamt: 40.007.729.152 Bytes");
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 27.122.827.264 Bytes");
}

TEST_CASE_FIXTURE(Fixture, "another drive shows its own space, one without a medium 0 bytes") {
    machine.systemFacts.SetSpace('D', {0, 1000, 1000});
    frame.drvSelect.SetDrive("D:\\");
    CHECK(frame.lblGesamt.Caption() == "Gesamt: 1.000 Bytes");
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 0 Bytes");
    frame.drvSelect.SetDrive("A:\\");
    CHECK(frame.lblGesamt.Caption() == "Gesamt: 0 Bytes");
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 0 Bytes");
}

TEST_CASE_FIXTURE(Fixture, "scrolling the list of drives shows the space anew") {
    machine.systemFacts.SetSpace('C', {0, 3000, 1000});
    frame.drvSelect.ScrollList();
    CHECK(frame.lblGesamt.Caption() == "Gesamt: 3.000 Bytes");
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 2.000 Bytes");
}

TEST_CASE_FIXTURE(Fixture, "the selected drive is walked whatever kind it is") {
    File("C:\\c.tmp");
    File("D:\\d.tmp");
    frame.drvSelect.SetDrive("D:\\");
    CHECK(Found() == Lines{"d:\\d.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "a drive without a medium is passed over") {
    File("C:\\c.tmp");
    frame.drvSelect.SetDrive("A:\\");
    CHECK(Found().empty());
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "all drives means all hard disks, in the order of the list") {
    machine.systemInformation.drives = {
        {"A:\\", DriveKind::Removable},   {"C:\\", DriveKind::Fixed},
        {"D:\\", DriveKind::OpticalDisc}, {"E:\\", DriveKind::Fixed},
        {"F:\\", DriveKind::Network},     {"G:\\", DriveKind::MemoryDisk},
        {"H:\\", DriveKind::Fixed}};
    tool.Start();
    for (const char* drive : {"A", "C", "D", "F", "G", "H"}) {
        File(std::string(drive) + ":\\x.tmp");
    }
    frame.drvSelect.SetDrive("D:\\");
    Tick(frame.chkScanAll);
    // E: is a disk that has gone.
    CHECK(Found() == Lines{"c:\\x.tmp", "h:\\x.tmp"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "an unknown Windows directory and no drive name no folder at all") {
    machine.systemFacts.windowsDirectory = "";
    disk.MakeFolder("C:\\Temp\\precious");
    File("C:\\x.tmp");
    frame.drvSelect.SetDrives({});
    CHECK(Found().empty());
    CHECK(frame.lblHinweisTemp.Caption() == "Keine Tempdateien gefunden!");
}

namespace {

class FailingDisplay final : public platform::Display {
  public:
    toolkit::Size Size() const override { return {}; }
    std::string CompactPath(const toolkit::Form&, std::string_view, int) const override {
        throw runtime::Failure(number);
    }
    int number = 0;
};

}  // namespace

TEST_CASE("failures of the drives are passed over, whatever their number") {
    for (bool allDrives : {false, true}) {
        for (int number : {5, 70, 76}) {
            platform::simulated::Machine machine;
            FailingDisplay display;
            display.number = number;
            platform::Machine services = platform::With(machine.services, {.display = &display});
            toolkit::Form form{machine.forms, "frmMain", "Quillmore", {}};
            cleanup::TempFiles tool{form, services};
            machine.disk.MakeFile("C:\\x.tmp");
            form.Load();
            tool.Start();
            tool.Frame().chkScanAll.SetValue(allDrives);
            tool.Frame().cmdSearchTempFiles.Press();
            CHECK(tool.Frame().lblHinweisTemp.Caption() == "Keine Tempdateien gefunden!");
            CHECK(machine.messages.Shown().empty());
        }
    }
}

TEST_CASE_FIXTURE(Fixture, "a drive that cannot be looked at is passed over") {
    File("C:\\x.tmp");
    Tick(frame.chkScanAll);
    disk.MakeFolder("D:\\Win\\Temp");
    machine.systemFacts.windowsDirectory = "D:\\Win";
    machine.faults.FailOn("c:\\", 5);
    CHECK(Found().empty());
    CHECK(machine.messages.Shown().empty());
}
