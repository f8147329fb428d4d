#include "platform/simulated/faults.h"

#include <doctest/doctest.h>

#include "keys.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using namespace platform_test;
using platform::simulated::DwordValue;
using runtime::Failure;

TEST_CASE_FIXTURE(Keys, "the n-th call from now on fails, once") {
    machine.settingsStore.Put("Options", "Tab", "3");
    machine.faults.FailNth(3, 5);
    CHECK(OpenResult(HKLM, "") == Registry::Success);
    CHECK(machine.settingsStore.Get("Quillmore", "Options", "Tab", "0") == "3");
    CHECK(OpenResult(HKLM, "") == 5);
    CHECK(OpenResult(HKLM, "") == Registry::Success);
    CHECK(machine.faults.Idle());
}

TEST_CASE_FIXTURE(Keys,
                  "the n-th call and all behind it fail, the registry with a code of its own") {
    machine.faults.FailFrom(2, {1117, 68});
    CHECK(OpenResult(HKLM, "") == Registry::Success);
    CHECK(OpenResult(HKLM, "") == 1117);
    CHECK(FailureOf([&] { machine.settingsStore.Save("Quillmore", "Options", "Tab", "1"); }) == 68);
    machine.faults.Clear();
    CHECK(OpenResult(HKLM, "") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "the names of the calls that could fail are kept while they are watched") {
    machine.faults.Watch();
    OpenResult(HKLM, "");
    machine.settingsStore.Save("Quillmore", "Options", "Tab", "1");
    CHECK(machine.faults.Asked() == std::vector<std::string>{"RegOpenKeyExA", "SaveSetting"});
    machine.faults.Clear();
    CHECK(machine.faults.Asked().empty());
}

TEST_CASE_FIXTURE(Keys, "every call of a kind fails until the faults are cleared") {
    machine.faults.FailAll("RegOpenKeyExA", 1450);
    CHECK(OpenResult(HKLM, "") == 1450);
    CHECK(OpenResult(HKCU, "") == 1450);
    CHECK(CreateResult(HKLM, "A") == Registry::Success);
    machine.faults.Clear();
    CHECK(OpenResult(HKLM, "") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "every registry call on one key fails, with its sub-keys and values") {
    registry.Put(HKLM, "System\\Select", "v", DwordValue(1));
    auto key = Opened(HKLM, "System\\Select");
    machine.faults.FailOn("HKLM\\SYSTEM\\select", 5);
    CHECK(OpenResult(HKLM, "System\\Select") == 5);
    CHECK(OpenResult(key, "Sub") == 5);
    CHECK(CreateResult(HKLM, "System\\Select\\Sub") == 5);
    CHECK(SizeResult(key, "v") == 5);
    CHECK(SetText(key, "v", "x") == 5);
    CHECK(registry.RemoveValue(key, "v") == 5);
    CHECK(registry.RemoveKey(HKLM, "System\\Select") == 5);
    CHECK(registry.Close(key) == 5);
    CHECK(OpenResult(HKLM, "System") == Registry::Success);
    CHECK(registry.Value(HKLM, "System\\Select", "v") == DwordValue(1));
}

TEST_CASE_FIXTURE(Keys, "one value can fail where its neighbours do not") {
    machine.faults.FailOn("HKLM\\A|MTU", 5);
    CreateResult(HKLM, "A");
    auto key = Opened(HKLM, "A");
    CHECK(SetText(key, "mtu", "1") == 5);
    CHECK(SizeResult(key, "MTU") == 5);
    CHECK(registry.RemoveValue(key, "MTU") == 5);
    CHECK(SetText(key, "Other", "1") == Registry::Success);
    CHECK(SizeResult(key, "Other") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a subject of other services is a path, a command line or a title") {
    machine.faults.FailOn("C:\\X\\", 76);
    machine.faults.FailOn("regsvr32", 2);
    machine.faults.FailOn("Fehler", 7);
    CHECK_THROWS_AS(machine.files.OpenForAppend("c:\\x\\y.log"), Failure);
    CHECK(machine.processes.Create("regsvr32.exe /s", 32, {}) == 0);
    CHECK(machine.messages.Show("t", 16, "Fehler 5") == 0);
    CHECK(machine.files.OpenForAppend("c:\\z.log") != 0);
}

TEST_CASE_FIXTURE(Keys, "calls whose contract names no other outcome throw the failure's number") {
    auto number = [&](const char* call, auto action) {
        machine.faults.Clear();
        machine.faults.FailAll(call, 429);
        return FailureOf([&] { action(); });
    };
    auto file = machine.files.OpenForAppend("C:\\a");
    CHECK(number("OpenForAppend", [&] { machine.files.OpenForAppend("C:\\b"); }) == 429);
    CHECK(number("WriteFile", [&] { machine.files.Write(file, "x"); }) == 429);
    CHECK(number("CloseFile", [&] { machine.files.Close(file); }) == 429);
    CHECK(number("SaveSetting", [&] { machine.settingsStore.Save("T", "S", "K", "x"); }) == 429);
    CHECK(number("ExitSession", [&] { machine.session.ExitSession(2, 0); }) == 429);
    CHECK(number("GetVersionExA", [&] { machine.operatingSystem.Facts(); }) == 429);
    CHECK(number("Memory.TotalPhysical", [&] { machine.memory.TotalPhysical(); }) == 429);
    CHECK(number("SetTimer", [&] { machine.clock.StartTimer(1, [] {}); }) == 429);
    CHECK(number("Tray.SetIcon", [&] { machine.tray.SetIcon(); }) == 429);
    CHECK(number("Tray.SetTip", [&] { machine.tray.SetTip("x"); }) == 429);
    CHECK(number("Tray.SetShown", [&] { machine.tray.SetShown(true); }) == 429);

    CHECK_FALSE(machine.files.Content("C:\\b"));
    CHECK(machine.files.Content("C:\\a") == "");
    CHECK(machine.settingsStore.All().empty());
    CHECK(machine.session.requests.empty());
    CHECK(machine.clock.RunningTimers() == 0);
    CHECK_FALSE(machine.tray.hasIcon);
    CHECK_FALSE(machine.tray.shown);
    CHECK(machine.tray.tip == "");
    CHECK(machine.journal.Calls("ExitSession").back() == "ExitSession 2 0 -> failure 429");
}

TEST_CASE_FIXTURE(Keys, "calls whose contract names their failure fail in that way") {
    machine.settingsStore.Put("Options", "Tab", "3");
    machine.autostart.entries["Quillmore"] = "x";
    auto process = machine.processes.Create("a.exe", 32, {});
    for (const char* call : {"GetSetting", "GetWindowsDirectoryA", "GetSystemDirectoryA",
                             "AutoStartAdd", "AutoStartRemove", "AutoStartExists", "CreateProcessA",
                             "CloseHandle", "WaitForSingleObject", "MessageBox"}) {
        machine.faults.FailAll(call, 5);
    }
    CHECK(machine.settingsStore.Get("Quillmore", "Options", "Tab", "0") == "0");
    CHECK(machine.systemFacts.WindowsDirectory() == "");
    CHECK(machine.systemFacts.SystemDirectory() == "");
    CHECK_FALSE(machine.autostart.AutoStartAdd("d", "New", "e"));
    CHECK_FALSE(machine.autostart.AutoStartRemove("Quillmore"));
    CHECK_FALSE(machine.autostart.AutoStartExists("Quillmore"));
    CHECK(machine.processes.Create("b.exe", 32, {}) == 0);
    machine.processes.WaitForEnd(process);
    CHECK_FALSE(machine.processes.Close(process));
    CHECK(machine.messages.Show("t", 36, "T") == 0);
    CHECK(machine.messages.Shown().empty());
    CHECK(machine.autostart.entries.size() == 1);
    REQUIRE(machine.processes.All().size() == 1);
    CHECK_FALSE(machine.processes.All()[0].waitedFor);
    CHECK_FALSE(machine.processes.All()[0].closed);
}
