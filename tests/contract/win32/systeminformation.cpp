#include "platform/systeminformation.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/win32/text.h"

namespace {

struct WindowsFacts {
    contract::TestMachine machine;
    platform::SystemInformation& information = machine.Services().systemInformation;
};

}  // namespace

TEST_CASE_FIXTURE(WindowsFacts, "the information is the system's own") {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExW(&version);
    CHECK(information.ServicePack() == platform::win32::FromWide(version.szCSDVersion));
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    CHECK(information.ProcessorCount() == static_cast<int>(system.dwNumberOfProcessors));
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatusEx(&status);
    CHECK(information.Memory().value().total == status.ullTotalPhys);
    wchar_t name[256];
    DWORD size = 256;
    GetComputerNameW(name, &size);
    CHECK(information.ComputerName() == platform::win32::FromWide({name, size}));
}

TEST_CASE_FIXTURE(WindowsFacts, "the screen is the main one") {
    const auto screen = information.MainScreen().value();
    CHECK(screen.width == GetSystemMetrics(SM_CXSCREEN));
    CHECK(screen.height == GetSystemMetrics(SM_CYSCREEN));
    CHECK(screen.colourDepth >= 16);
}

TEST_CASE_FIXTURE(WindowsFacts, "asking for a volume leaves the error mode as it was") {
    const UINT before = SetErrorMode(SEM_NOOPENFILEERRORBOX);
    information.VolumeOn("C:\\");
    CHECK(SetErrorMode(before) == SEM_NOOPENFILEERRORBOX);
}

TEST_CASE_FIXTURE(WindowsFacts, "the label of the disk is the system's") {
    wchar_t label[MAX_PATH + 1] = L"";
    REQUIRE(GetVolumeInformationW(L"C:\\", label, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0));
    CHECK(information.VolumeOn("C:\\").label == platform::win32::FromWide(label));
}

TEST_CASE_FIXTURE(WindowsFacts, "the sizes of the disk are those of the system") {
    ULARGE_INTEGER free = {};
    ULARGE_INTEGER size = {};
    REQUIRE(GetDiskFreeSpaceExW(L"C:\\", &free, &size, nullptr));
    CHECK(information.VolumeOn("C:\\").size == size.QuadPart);
}
