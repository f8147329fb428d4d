// Drives that are to be there again after a restart of Windows.
#include <doctest/doctest.h>

#include "dialogs/drives.h"
#include "dialogs/frmvirtualdrive.h"
#include "runtime/failure.h"

using namespace dialogs_test;

TEST_CASE_FIXTURE(Drives, "the box stores each drive with its volume's name and tries the start") {
    Make("E:", "C:\\PROGRA~1");
    Make("F:", "C:\\");
    form.Show();
    machine.journal.Clear();
    machine.folders.current = "D:\\";
    restore.SetValue(1);
    CHECK(Store() ==
          std::map<std::string, std::string>{{"dmVDriveC|Config|Restore", "1"},
                                             {"dmVDriveC|Config|Count", "2"},
                                             {"dmVDriveC|Config|Drives1", "E:=>SYSTEM"},
                                             {"dmVDriveC|Config|Drives2", "F:=>SYSTEM"}});
    Lines stores;
    for (const std::string& line : machine.journal.Calls("SaveSetting")) {
        stores.push_back(line.substr(line.find("\"Config\" ") + 9));
    }
    CHECK(stores == Lines{"\"Drives1\" \"E:=>SYSTEM\"", "\"Drives2\" \"F:=>SYSTEM\"",
                          "\"Count\" \"2\"", "\"Restore\" \"1\""});
    CHECK(machine.journal.Calls("RegCreateKeyExA") ==
          Lines{"RegCreateKeyExA 0x02 \""s + RunKey + "\" 0x3F -> 6"});
    CHECK(machine.journal.Calls("RegSetValueExA").size() == 1);
    CHECK(machine.journal.Calls("RegSetValueExA")[0].find(
              "\"VDriveC\" type 1 size 39 data \"C:\\Programme\\Quillmore\\Quillmore.exe -r\" -> "
              "6") != std::string::npos);
    CHECK(machine.folders.current == "C:\\Programme\\Quillmore\\");
    machine.settingsStore.Save("dmVDriveC", "Other", "x", "stays");
    machine.folders.current = "D:\\";
    restore.SetValue(0);
    CHECK(machine.folders.current == "C:\\Programme\\Quillmore\\");
    CHECK(Store() == std::map<std::string, std::string>{{"dmVDriveC|Other|x", "stays"}});
    CHECK(machine.journal.Calls("RegOpenKeyExA") ==
          Lines{"RegOpenKeyExA 0x02 \""s + RunKey + "\" 0x3F -> 6"});
    REQUIRE(machine.journal.Calls("RegDeleteValueA").size() == 1);
    CHECK(machine.journal.Calls("RegDeleteValueA")[0].find("\"VDriveC\" -> 6") !=
          std::string::npos);
    CHECK_FALSE(machine.registry.HasKey(platform::Registry::LocalMachine, RunKey));
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Drives, "a store that cannot be written passes its failure on") {
    Make("E:", "C:\\");
    form.Show();
    restore.SetValue(1);
    const auto stored = Store();
    machine.faults.FailAll("DeleteSetting", runtime::InvalidProcedureCall);
    CHECK_THROWS_AS(restore.SetValue(0), runtime::Failure);
    CHECK(Store() == stored);
    CHECK(machine.registry.OpenHandles() == 0);
    machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    CHECK_THROWS_AS(restore.SetValue(1), runtime::Failure);
}

TEST_CASE_FIXTURE(Drives, "over an empty list the box stores nothing") {
    form.Show();
    machine.journal.Clear();
    restore.SetValue(1);
    CHECK(Store().empty());
    CHECK(machine.journal.Calls("RegCreateKeyExA").empty());
}

TEST_CASE_FIXTURE(Drives, "the box shows what is stored and by that stores nothing") {
    Make("E:", "C:\\");
    const auto shown = [&](const char* stored) {
        machine.settingsStore.Save("dmVDriveC", "Config", "Restore", stored);
        form.Show();
        const int value = restore.Value();
        form.Unload();
        return value;
    };
    CHECK(shown("1") == 1);
    CHECK(shown("") == 0);
    CHECK(shown(" 1x") == 1);
    CHECK(shown("7") == 0);
    CHECK(shown("&HFFFFFFFFFF") == 0);
    CHECK(shown("1") == 1);
    CHECK(Store().size() == 1);
}

TEST_CASE_FIXTURE(Drives, "the stored drives are made again by the routine that nobody calls") {
    machine.program.commandLine = "-r";
    machine.settingsStore.Save("dmVDriveC", "Config", "Count", "2");
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives1", "E:=>C:\\A");
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives2", "F:=>SYSTEM");
    form.Show();
    CHECK(Started() == Lines{List});
    form.RestoreDrives();
    CHECK(Started() == Lines{"command.com /csubst E: C:\\A", "command.com /csubst F: SYSTEM"});
    machine.settingsStore.Save("dmVDriveC", "Config", "Count", "0");
    machine.folders.current = "D:\\";
    form.RestoreDrives();
    CHECK(Started().empty());
    CHECK(machine.folders.current == "D:\\");
}

TEST_CASE_FIXTURE(Drives, "each stored drive is awaited before the next one is made") {
    machine.settingsStore.Save("dmVDriveC", "Config", "Count", "2");
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives1", "E:=>C:\\A");
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives2", "F:=>C:\\B");
    form.Show();
    Started();
    machine.folders.current = "D:\\";
    machine.journal.Clear();
    std::vector<std::size_t> runningAtEvents;
    machine.forms.onEvents = [&] {
        runningAtEvents.push_back(machine.processes.OpenHandles());
        CHECK(machine.processes.launched.size() == (runningAtEvents.size() > 4 ? 2 : 1));
    };
    form.RestoreDrives();
    // Three times while each command runs, and once behind it.
    CHECK(runningAtEvents == std::vector<std::size_t>{1, 1, 1, 0, 1, 1, 1, 0});
}

TEST_CASE_FIXTURE(Drives, "as many drives are made again as are counted, without half entries") {
    form.Show();
    Started();
    for (int number = 1; number <= 27; ++number) {
        machine.settingsStore.Save("dmVDriveC", "Config", "Drives" + std::to_string(number),
                                   "E:=>C:\\A");
    }
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives2", "F:");
    machine.settingsStore.Save("dmVDriveC", "Config", "Drives3", "");
    machine.settingsStore.Save("dmVDriveC", "Config", "Count", "27");
    form.RestoreDrives();
    CHECK(Started().size() == 25);
    machine.journal.Clear();
    machine.settingsStore.Save("dmVDriveC", "Config", "Count", "1E30");
    form.RestoreDrives();
    // The count itself is one of them.
    CHECK(machine.journal.Calls("GetSetting").size() == 1 + 32767);
}
