// The dialogs behind the buttons of the window.
#include <doctest/doctest.h>

#include <functional>
#include <map>

#include "app/program.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"

using namespace app_test;

namespace {

struct Dialogs : Program {
    Dialogs() { REQUIRE(Start()); }

    // Presses a button of the window and lets `user` see the dialog that it shows.
    void Open(const char* button, const char* dialog, std::function<void(toolkit::Form&)> user) {
        int shown = 0;
        machine.forms.WhenModal(dialog, [&](toolkit::Form& form) {
            ++shown;
            user(form);
            form.Unload();
        });
        Press(button);
        CHECK(shown == 1);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Dialogs,
                  "Info shows the about dialog with the version, over the window's middle") {
    Open("cmdAbout", "frmAbout", [&](toolkit::Form& about) {
        CHECK(about.Find<toolkit::Label>("lblVersion").Caption() == "v2.38");
        const toolkit::Bounds& place = about.Place();
        const toolkit::Bounds& window = form->Place();
        CHECK(place.left + place.width / 2 == window.left + window.width / 2);
        CHECK(place.top + place.height / 2 == window.top + window.height / 2);
        machine.clock.Advance(127);
        CHECK(about.Layer().alpha == 255);
    });
}

TEST_CASE_FIXTURE(Dialogs, "the about dialog fades anew each time it is shown") {
    for (int time = 0; time < 2; ++time) {
        Open("cmdAbout", "frmAbout", [&](toolkit::Form& about) {
            CHECK(about.Layer().alpha == 0);
            machine.clock.Advance(1);
            CHECK(about.Layer().alpha == 3);
        });
    }
}

TEST_CASE_FIXTURE(Dialogs, "SysInfo shows the system information over the window's middle") {
    Open("cmdSysInfo", "frmSystemInformation", [&](toolkit::Form& information) {
        CHECK(
            information.Find<toolkit::TextBox>("txtReport").Text().starts_with("Betriebssystem:"));
        const toolkit::Bounds& place = information.Place();
        CHECK(place.left == form->Place().left + (form->Place().width - place.width) / 2);
    });
}

TEST_CASE_FIXTURE(Dialogs, "the logged-on users are shown over the window's middle, each time") {
    for (const char* name : {"Besitzer", "Gast"}) {
        machine.workstation.batches =
            platform::simulated::Workstation::Batches{{{name, "PC-1", "", ""}}};
        Open("cmdShowAllLoggedOnUsers", "frmShowAllLoggedInUsers", [&](toolkit::Form& users) {
            CHECK(users.Find<toolkit::ListBox>("lstUsers").Items() ==
                  std::vector<std::string>{std::string("PC-1\\") + name});
            const toolkit::Bounds& place = users.Place();
            CHECK(place.left == form->Place().left + (form->Place().width - place.width) / 2);
        });
        CHECK(form->Loaded());
    }
}

TEST_CASE_FIXTURE(Dialogs, "a refused list of users is told before its dialog is shown, empty") {
    machine.faults.FailAll("NetWkstaUserEnum", 5);
    const std::size_t before = machine.messages.Shown().size();
    Open("cmdShowAllLoggedOnUsers", "frmShowAllLoggedInUsers", [&](toolkit::Form& users) {
        CHECK(machine.messages.Shown().size() == before + 1);
        CHECK(users.Find<toolkit::ListBox>("lstUsers").Items().empty());
    });
    CHECK(machine.forms.ScreenPointer() == 0);
}

TEST_CASE_FIXTURE(Dialogs, "the installed software is shown over the window's middle, each time") {
    using platform::simulated::TextValue;
    for (const char* name : {"Eins", "Zwei"}) {
        for (const char* value : {"DisplayName", "UninstallString"}) {
            machine.registry.Put(
                platform::Registry::LocalMachine,
                std::string("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\") + name,
                value, TextValue(name));
        }
        Open("cmdInstalledSoftware", "frmInstalledSoftware", [&](toolkit::Form& software) {
            const auto& list = software.Find<toolkit::ListView>("lvwSoftware");
            CHECK(list.Text(list.Count() - 1) == name);
            const toolkit::Bounds& place = software.Place();
            CHECK(place.left == form->Place().left + (form->Place().width - place.width) / 2);
            CHECK(place.top == form->Place().top + (form->Place().height - place.height) / 2);
        });
    }
}

TEST_CASE_FIXTURE(Dialogs, "the virtual drives are shown over the window's middle, each time") {
    for (int time = 0; time < 2; ++time) {
        Open("cmdVirtualDrive", "frmVirtualDrive", [&](toolkit::Form& drives) {
            CHECK(drives.Find<toolkit::ListView>("lstDrives").Count() == 0);
            const toolkit::Bounds& place = drives.Place();
            CHECK(place.left == form->Place().left + (form->Place().width - place.width) / 2);
            CHECK(place.top == form->Place().top + (form->Place().height - place.height) / 2);
        });
    }
    CHECK(machine.processes.launched.size() == 2);
}

TEST_CASE_FIXTURE(Dialogs,
                  "a second press while the drives are being read shows no second dialog") {
    int events = 0;
    machine.forms.onEvents = [&] {
        if (++events == 1) Press("cmdVirtualDrive");
    };
    Open("cmdVirtualDrive", "frmVirtualDrive", [](toolkit::Form&) {});
    CHECK(events == 1);
    CHECK(machine.processes.launched.size() == 1);
}

TEST_CASE_FIXTURE(Dialogs,
                  "while the drives are first read the window itself shows the hourglass") {
    std::vector<int> shown;
    machine.forms.onEvents = [&] { shown.push_back(form->ShownPointer()); };
    Open("cmdVirtualDrive", "frmVirtualDrive",
         [&](toolkit::Form& drives) { CHECK(drives.ShownPointer() == toolkit::DefaultPointer); });
    CHECK(shown == std::vector<int>{toolkit::Hourglass});
    CHECK(form->ShownPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Dialogs, "the buttons of the dialogs say what they show") {
    for (const auto& [button, caption] : std::map<const char*, const char*>{
             {"cmdShowAllLoggedOnUsers", "Alle gerade am System angemeldeten Benutzer anzeigen"},
             {"cmdInstalledSoftware", "Installierte Software"},
             {"cmdVirtualDrive", "Virtuelle Laufwerke verwalten"}}) {
        CHECK(form->Find<controls::chameleonButton>(button).Caption() == caption);
    }
}

TEST_CASE_FIXTURE(Dialogs, "the dialogs are there and empty when nothing can be read") {
    for (const char* call : {"GetVersionExA", "GetSystemInfo", "GlobalMemoryStatusEx",
                             "GetLogicalDrives", "GetDeviceCaps", "RegOpenKeyExA",
                             "GetComputerNameA", "NetWkstaUserEnum", "FormatMessageA", "Start",
                             "SetCurrentDirectoryW", "GetSetting", "GetVolumeInformationA"}) {
        machine.faults.FailAll(call, 5);
    }
    Open("cmdAbout", "frmAbout", [](toolkit::Form& about) {
        CHECK(about.Find<toolkit::Label>("lblVersion").Caption() == "v2.38");
    });
    Open("cmdSysInfo", "frmSystemInformation", [](toolkit::Form& information) {
        const std::string& report = information.Find<toolkit::TextBox>("txtReport").Text();
        CHECK(report.starts_with("Betriebssystem:\tnicht verfügbar\r\n"));
        CHECK(report.find("\nLaufwerke:\tnicht verfügbar\r\n") != std::string::npos);
    });
    CHECK(machine.messages.Shown().empty());
    Open("cmdShowAllLoggedOnUsers", "frmShowAllLoggedInUsers", [](toolkit::Form& users) {
        CHECK(users.Find<toolkit::ListBox>("lstUsers").Items().empty());
    });
    CHECK(machine.messages.Shown().size() == 1);
    Open("cmdInstalledSoftware", "frmInstalledSoftware", [](toolkit::Form& software) {
        CHECK(software.Find<toolkit::ListView>("lvwSoftware").Count() == 0);
        CHECK(software.Find<toolkit::Label>("lblFound").Caption() == "Gefunden: 0 Anwendungen");
    });
    Open("cmdVirtualDrive", "frmVirtualDrive", [](toolkit::Form& drives) {
        CHECK(drives.Find<toolkit::ListView>("lstDrives").Count() == 0);
        CHECK(drives.Find<toolkit::ComboBox>("cbodrives").Items().size() == 26);
    });
    CHECK(machine.messages.Shown().size() == 1);
}
