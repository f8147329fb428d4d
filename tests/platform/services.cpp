#include <doctest/doctest.h>

#include "platform/settings.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using Lines = std::vector<std::string>;

namespace {

struct Services {
    platform::simulated::Machine machine;
    const Lines& lines = machine.journal.Lines();
};

}  // namespace

TEST_CASE_FIXTURE(Services, "the program sees the machine's own services") {
    machine.services.settingsStore.Save("Quillmore", "Options", "Tab", "4");
    CHECK(machine.settingsStore.Stored("Options", "Tab") == "4");
    CHECK(&machine.services.forms == &machine.forms);
    CHECK(&machine.services.registry == &machine.registry);
    CHECK(&machine.services.clock == &machine.clock);
    CHECK(&machine.services.program == &machine.program);
}

TEST_CASE_FIXTURE(Services, "a fresh machine is a German XP with nothing in it") {
    CHECK(machine.services.operatingSystem.Facts().name == "Microsoft Windows XP");
    CHECK(machine.services.operatingSystem.Facts().build == 2600);
    CHECK(machine.services.systemFacts.WindowsDirectory() == "C:\\WINDOWS");
    CHECK(machine.services.systemFacts.SystemDirectory() == "C:\\WINDOWS\\system32");
    CHECK(machine.services.memory.TotalPhysical() == "536330240");
    CHECK(machine.services.program.Directory() == "C:\\Programme\\Quillmore");
    CHECK(machine.services.program.ExecutableName() == "Quillmore");
    CHECK(machine.services.program.CommandLine() == "");
    CHECK(machine.registry.Dump().empty());
    CHECK(machine.settingsStore.All().empty());
    CHECK(lines == Lines{"GetVersionExA -> 5.1.2600", "GetVersionExA -> 5.1.2600",
                         "GetWindowsDirectoryA -> \"C:\\WINDOWS\"",
                         "GetSystemDirectoryA -> \"C:\\WINDOWS\\system32\"",
                         "Memory.TotalPhysical -> \"536330240\""});
}

TEST_CASE_FIXTURE(Services, "a setting is stored under title, section and key in any case") {
    platform::Settings settings(machine.settingsStore);
    CHECK(settings.GetSetting("Options", "Accepted", "No") == "No");
    settings.SaveSetting("Options", "Accepted", "Yes");
    settings.SaveSetting("OPTIONS", "accepted", "");
    CHECK(settings.GetSetting("options", "ACCEPTED", "No") == "");
    CHECK(machine.settingsStore.All() ==
          std::map<std::string, std::string>{{"Quillmore|Options|Accepted", ""}});
    CHECK(machine.settingsStore.Get("Other", "Options", "Accepted", "none") == "none");
    CHECK(lines == Lines{"GetSetting \"Quillmore\" \"Options\" \"Accepted\" -> \"No\"",
                         "SaveSetting \"Quillmore\" \"Options\" \"Accepted\" \"Yes\"",
                         "SaveSetting \"Quillmore\" \"OPTIONS\" \"accepted\" \"\"",
                         "GetSetting \"Quillmore\" \"options\" \"ACCEPTED\" -> \"\"",
                         "GetSetting \"Other\" \"Options\" \"Accepted\" -> \"none\""});
}

TEST_CASE_FIXTURE(Services, "seeded settings are found, and looking leaves no trace") {
    machine.settingsStore.Put("Options", "Tab", "3");
    machine.settingsStore.Put("options", "TAB", "4");
    CHECK(machine.settingsStore.Stored("Options", "tab") == "4");
    CHECK_FALSE(machine.settingsStore.Stored("Options", "Left"));
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(Services, "appending makes a file and keeps what an existing one holds") {
    auto first = machine.files.OpenForAppend("C:\\a.log");
    machine.files.Write(first,
                        "\xDC"
                        "ber\r\n");
    machine.files.Close(first);
    auto second = machine.files.OpenForAppend("c:\\A.LOG");
    machine.files.Write(second, "2");
    CHECK(machine.files.OpenHandles() == 1);
    machine.files.Close(second);
    machine.files.Close(second);
    CHECK(machine.files.OpenHandles() == 0);
    CHECK(machine.files.Content("C:\\A.log") ==
          "\xDC"
          "ber\r\n2");
    CHECK_FALSE(machine.files.Content("C:\\b.log"));
    CHECK(lines == Lines{"OpenForAppend \"C:\\a.log\" -> #1", "WriteFile #1 \"Über\\r\\n\"",
                         "CloseFile #1", "OpenForAppend \"c:\\A.LOG\" -> #2", "WriteFile #2 \"2\"",
                         "CloseFile #2", "CloseFile #2"});
}

TEST_CASE_FIXTURE(Services, "files refuse in the platform's way") {
    machine.files.Put("C:\\Programme\\X\\old.log", "old");
    machine.files.MakeReadOnly("c:\\programme\\x");
    auto open = [&](const char* path) {
        return FailureOf([&] { machine.files.OpenForAppend(path); });
    };
    CHECK(open("C:\\Programme\\X\\old.log") == runtime::PermissionDenied);
    CHECK(open("C:\\Programme\\X\\new.log") == runtime::PermissionDenied);
    CHECK(open("C:\\Programme\\XY\\new.log") == 0);
    CHECK(open("c:\\programme\\xy\\NEW.log") == runtime::PermissionDenied);
    CHECK(open("") == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.Write(99, "x"); }) == runtime::BadFileNumber);
    CHECK(machine.files.Content("C:\\Programme\\X\\old.log") == "old");
    CHECK(machine.files.OpenHandles() == 1);
    CHECK(lines.front() == "OpenForAppend \"C:\\Programme\\X\\old.log\" -> failure 70");
}

TEST_CASE_FIXTURE(Services, "a process is started, waited for and closed once") {
    auto process = machine.processes.Create("rstrui.exe", 32, {66, 1, 1});
    machine.processes.WaitForEnd(process);
    CHECK(machine.processes.Close(process));
    CHECK_FALSE(machine.processes.Close(process));
    machine.processes.WaitForEnd(0);
    CHECK_FALSE(machine.processes.Close(0));
    REQUIRE(machine.processes.All().size() == 1);
    const auto& started = machine.processes.All()[0];
    CHECK(started.commandLine == "rstrui.exe");
    CHECK(started.creationFlags == 32);
    CHECK(started.startup.cb == 66);
    CHECK(started.waitedFor);
    CHECK(started.closed);
    CHECK(lines ==
          Lines{"CreateProcessA \"rstrui.exe\" flags 0x20 cb 66 dwFlags 1 wShowWindow 1 -> #1",
                "WaitForSingleObject #1", "CloseHandle #1 -> 1", "CloseHandle #1 -> 0",
                "WaitForSingleObject #0", "CloseHandle #0 -> 0"});
}

TEST_CASE_FIXTURE(Services, "a process that does not start has the handle 0 and is not listed") {
    machine.faults.FailAll("CreateProcessA", 2);
    CHECK(machine.processes.Create("x.exe", 32, {}) == 0);
    CHECK(machine.processes.All().empty());
    CHECK(lines.back() == "CreateProcessA \"x.exe\" flags 0x20 cb 0 dwFlags 0 wShowWindow 0 -> 0");
}

TEST_CASE_FIXTURE(Services, "session requests are recorded and end nothing") {
    machine.session.ExitSession(platform::Session::Restart, 0);
    machine.session.ExitSession(platform::Session::ShutDown, 1);
    CHECK(machine.session.requests ==
          std::vector<platform::simulated::Session::Request>{{2, 0}, {8, 1}});
    CHECK(lines == Lines{"ExitSession 2 0", "ExitSession 8 1"});
}

TEST_CASE_FIXTURE(Services, "the autostart entry holds the quoted path of the executable") {
    auto& autostart = machine.autostart;
    CHECK_FALSE(autostart.AutoStartExists("Quillmore"));
    CHECK_FALSE(autostart.AutoStartRemove("Quillmore"));
    CHECK(autostart.AutoStartAdd("C:\\Programme\\Quillmore", "Quillmore", "Quillmore"));
    CHECK(autostart.AutoStartExists("Quillmore"));
    CHECK(autostart.entries.at("Quillmore") == "\"C:\\Programme\\Quillmore\\Quillmore.exe\"");
    CHECK(autostart.AutoStartRemove("Quillmore"));
    CHECK(autostart.entries.empty());
    CHECK(lines ==
          Lines{"AutoStartExists \"Quillmore\" -> 0", "AutoStartRemove \"Quillmore\" -> 0",
                "AutoStartAdd \"C:\\Programme\\Quillmore\" \"Quillmore\" \"Quillmore\" -> 1",
                "AutoStartExists \"Quillmore\" -> 1", "AutoStartRemove \"Quillmore\" -> 1"});
}

TEST_CASE_FIXTURE(Services, "the tray keeps icon, tip and whether it is shown apart") {
    machine.tray.SetIcon();
    machine.tray.SetTip("Quillmore");
    CHECK_FALSE(machine.tray.shown);
    machine.tray.SetShown(true);
    CHECK(machine.tray.hasIcon);
    CHECK(machine.tray.shown);
    CHECK(machine.tray.tip == "Quillmore");
    machine.tray.SetShown(false);
    CHECK_FALSE(machine.tray.shown);
    CHECK(lines ==
          Lines{"Tray.SetIcon", "Tray.SetTip \"Quillmore\"", "Tray.SetShown 1", "Tray.SetShown 0"});
}

TEST_CASE_FIXTURE(Services, "the program's end passes every policy for failures") {
    bool survived = true;
    CHECK_THROWS_AS(runtime::Skip([&] {
                        machine.services.program.End();
                        survived = false;
                    }),
                    platform::simulated::ProgramEnded);
    CHECK(survived);
    CHECK(machine.program.ended);
    CHECK(lines == Lines{"End"});
}
