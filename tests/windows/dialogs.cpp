// The program's own dialogs as native windows, over and over.
#include <doctest/doctest.h>

#include "controls/frmabout.h"
#include "controls/frmfirstinfo.h"
#include "controls/frmpassword.h"
#include "platform/simulated/machine.h"
#include "platform/simulated/withservices.h"
#include "utilities/frminstalledsoftware.h"
#include "utilities/frmshowallloggedinusers.h"
#include "utilities/frmsysteminformation.h"
#include "utilities/frmvirtualdrive.h"
#include "windows/desk.h"
#include "windows/resources.h"

using namespace windows;
using platform::Registry;

namespace {

const char UninstallKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

// A machine in memory whose windows are real ones, with something to show in every list.
struct DialogsFixture {
    DialogsFixture() {
        simulated.journal.Record(false);
        for (const std::string name : {"Anwendung", "Öffner"}) {
            for (const char* value : {"DisplayName", "UninstallString"}) {
                simulated.registry.Put(Registry::LocalMachine, UninstallKey + name, value,
                                       platform::simulated::TextValue(name));
            }
        }
    }

    template <typename Dialog, typename... Others>
    void OpenAndClose(const Others&... others) {
        Dialog dialog(machine, others...);
        dialog.Show();
        ServeQueue();
        REQUIRE(dialog.Visible());
        dialog.Unload();
    }

    // Opens and closes the dialog a thousand times. The first ones fill what the system keeps.
    template <typename Dialog, typename... Others>
    void LeavesNothing(const Others&... others) {
        for (int i = 0; i < 50; ++i) OpenAndClose<Dialog>(others...);
        const int objects = DrawingObjects();
        const int handles = Handles();
        const std::size_t memory = PrivateMemory();
        for (int i = 0; i < 1000; ++i) OpenAndClose<Dialog>(others...);
        // One left behind each time would be a thousand; the system keeps a few of its own.
        CHECK(DrawingObjects() <= objects + 20);
        CHECK(Handles() <= handles + 20);
        CHECK(PrivateMemory() <= memory + 256 * 1024);
    }

    Desk desk;
    platform::simulated::Machine simulated;
    platform::Machine machine =
        platform::simulated::With(simulated.services, {.forms = &desk.host});
};

}  // namespace

TEST_CASE_FIXTURE(DialogsFixture, "a thousand about boxes leave nothing behind") {
    LeavesNothing<controls::frmAbout>(std::string("2.3.0.8"));
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand first warnings leave nothing behind") {
    LeavesNothing<controls::frmFirstInfo>();
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand questions for the password leave nothing behind") {
    LeavesNothing<controls::frmPassword>();
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand reports on the system leave nothing behind") {
    LeavesNothing<utilities::frmSystemInformation>();
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand lists of users leave nothing behind") {
    LeavesNothing<utilities::frmShowAllLoggedInUsers>();
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand lists of software leave nothing behind") {
    LeavesNothing<utilities::frmInstalledSoftware>();
}

TEST_CASE_FIXTURE(DialogsFixture, "a thousand lists of virtual drives leave nothing behind") {
    LeavesNothing<utilities::frmVirtualDrive>();
}
