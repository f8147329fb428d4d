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
    CHECK(machine.Services().systemFacts.WindowsDirectory() == platform::win32::FromWide(path));
    GetSystemDirectoryW(path, MAX_PATH);
    CHECK(machine.Services().systemFacts.SystemDirectory() == platform::win32::FromWide(path));
    GetTempPathW(MAX_PATH, path);
    CHECK(machine.Services().systemFacts.TempPath() == platform::win32::FromWide(path));
    DWORD length = MAX_PATH;
    GetUserNameW(path, &length);
    CHECK(machine.Services().systemFacts.UserName() == platform::win32::FromWide(path));
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

TEST_CASE("the drives' space is the system's, free to the user, in all and free") {
    contract::TestMachine machine;
    ULARGE_INTEGER freeToUser, total, free;
    REQUIRE(GetDiskFreeSpaceExW(L"C:\\", &freeToUser, &total, &free));
    const auto space = machine.Services().systemFacts.Space("C:\\");
    CHECK(space.total == total.QuadPart);
    // Somebody else may be writing meanwhile.
    constexpr std::uint64_t tolerance = 1 << 30;
    CHECK(space.freeToUser + tolerance > freeToUser.QuadPart);
    CHECK(space.freeToUser < freeToUser.QuadPart + tolerance);
    CHECK(space.free + tolerance > free.QuadPart);
    CHECK(space.free < free.QuadPart + tolerance);
}

TEST_CASE("asking for a drive leaves the system's error boxes as they were") {
    contract::TestMachine machine;
    const UINT before = SetErrorMode(SEM_NOGPFAULTERRORBOX);
    machine.Services().systemFacts.Space("A:\\");
    CHECK(SetErrorMode(before) == SEM_NOGPFAULTERRORBOX);
}

TEST_CASE("a directory for temporary files longer than the buffer is not told") {
    contract::TestMachine machine;
    wchar_t before[MAX_PATH];
    REQUIRE(GetEnvironmentVariableW(L"TMP", before, MAX_PATH) > 0);
    std::wstring longPath = L"C:\\";
    longPath.append(253, L't');
    SetEnvironmentVariableW(L"TMP", longPath.c_str());
    CHECK(machine.Services().systemFacts.TempPath() == "");
    SetEnvironmentVariableW(L"TMP", before);
    CHECK(machine.Services().systemFacts.TempPath() != "");
}
