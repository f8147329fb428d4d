#include "toolkit/drivelistbox.h"

#include <doctest/doctest.h>

#include "support/failureof.h"
#include "toolkit/journal.h"

using toolkit::DriveListBox;

namespace {

struct DriveListBoxFixture {
    NotingHost host;
    TestForm form{host};
    DriveListBox& drives = form.Add<DriveListBox>("drvSelect");
    Journal events;

    DriveListBoxFixture() {
        drives.SetDrives({"a:", "c: [SYSTEM]", "d:"});
        drives.onChange = [this] { events.push_back("change " + drives.Drive()); };
        drives.onScroll = [this] { events.push_back("scroll"); };
    }
};

}  // namespace

TEST_CASE_FIXTURE(DriveListBoxFixture, "a fresh list of drives has none selected") {
    CHECK(drives.Drive().empty());
    CHECK(drives.Items().size() == 3);
}

TEST_CASE_FIXTURE(DriveListBoxFixture,
                  "the first character of a path selects its drive, whatever its case") {
    drives.SetDrive("C:\\");
    CHECK(drives.Drive() == "c: [SYSTEM]");
    drives.SetDrive("d");
    CHECK(drives.Drive() == "d:");
    CHECK(events == Journal{"change c: [SYSTEM]", "change d:"});
}

TEST_CASE_FIXTURE(DriveListBoxFixture, "the drive that is selected already raises nothing") {
    drives.SetDrive("C:\\");
    drives.SetDrive("c:");
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(DriveListBoxFixture,
                  "a drive that is not there is failure 68, and the old one stays") {
    drives.SetDrive("C:\\");
    CHECK(FailureOf([&] { drives.SetDrive("Q:\\"); }) == runtime::DeviceUnavailable);
    CHECK(FailureOf([&] { drives.SetDrive(""); }) == runtime::DeviceUnavailable);
    CHECK(drives.Drive() == "c: [SYSTEM]");
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(DriveListBoxFixture, "the user's choice raises Change") {
    drives.SetListIndex(2);
    CHECK(events == Journal{"change d:"});
}

TEST_CASE_FIXTURE(DriveListBoxFixture, "one step past the last entry is empty text") {
    CHECK(drives.Entry(1) == "c: [SYSTEM]");
    CHECK(drives.Entry(3).empty());
    CHECK(drives.Entry(-1).empty());
}

TEST_CASE_FIXTURE(DriveListBoxFixture, "new entries keep the selected drive without an event") {
    drives.SetDrive("d:");
    events.clear();
    drives.SetDrives({"c: [SYSTEM]", "d:", "e:"});
    CHECK(drives.ListIndex() == 1);
    CHECK(events.empty());
}

TEST_CASE_FIXTURE(DriveListBoxFixture,
                  "a drive that got another label, or has gone, raises one Change") {
    drives.SetDrive("d:");
    events.clear();
    SUBCASE("label") {
        drives.SetDrives({"a:", "d: [MUSIK]"});
        CHECK(events == Journal{"change d: [MUSIK]"});
    }
    SUBCASE("gone") {
        drives.SetDrives({"a:"});
        CHECK(events == Journal{"change "});
    }
}

TEST_CASE_FIXTURE(DriveListBoxFixture, "scrolling the list raises Scroll, unless it is disabled") {
    drives.ScrollList();
    CHECK(events == Journal{"scroll"});
    drives.SetEnabled(false);
    drives.ScrollList();
    CHECK(events.size() == 1);
}
