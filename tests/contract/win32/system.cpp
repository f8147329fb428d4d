#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/clock.h"
#include "platform/memory.h"
#include "platform/systemfacts.h"
#include "platform/win32/operatingsystem.h"
#include "platform/win32/text.h"

TEST_CASE("versions of Windows have their vendor's names, unknown ones their numbers") {
    using platform::win32::NameOfWindows;
    CHECK(NameOfWindows(5, 0) == "Microsoft Windows 2000");
    CHECK(NameOfWindows(5, 1) == "Microsoft Windows XP");
    CHECK(NameOfWindows(5, 2) == "Microsoft Windows Server 2003");
    CHECK(NameOfWindows(6, 1) == "Microsoft Windows 6.1");
}

TEST_CASE("the facts are those of the system itself") {
    contract::TestMachine machine;
    wchar_t path[MAX_PATH];
    GetWindowsDirectoryW(path, MAX_PATH);
    CHECK(machine.Services().facts.WindowsDirectory() == platform::win32::FromWide(path));
    GetSystemDirectoryW(path, MAX_PATH);
    CHECK(machine.Services().facts.SystemDirectory() == platform::win32::FromWide(path));
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatusEx(&status);
    CHECK(machine.Services().memory.TotalPhysical() == std::to_string(status.ullTotalPhys));
}

TEST_CASE("now is the local time") {
    contract::TestMachine machine;
    SYSTEMTIME before;
    SYSTEMTIME after;
    platform::LocalTime now;
    // Once more when a second ended in between.
    do {
        GetLocalTime(&before);
        now = machine.Services().clock.Now();
        GetLocalTime(&after);
    } while (before.wSecond != after.wSecond);
    CHECK(now.year == before.wYear);
    CHECK(now.month == before.wMonth);
    CHECK(now.day == before.wDay);
    CHECK(now.hour == before.wHour);
    CHECK(now.minute == before.wMinute);
    CHECK(now.second == before.wSecond);
}
