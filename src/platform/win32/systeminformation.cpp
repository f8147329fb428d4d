#include "platform/win32/systeminformation.h"

#include <windows.h>

#include "platform/win32/nomediumbox.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

DriveKind KindOf(const std::string& root) {
    switch (GetDriveTypeA(root.c_str())) {
        case DRIVE_REMOVABLE:
            return DriveKind::Removable;
        case DRIVE_FIXED:
            return DriveKind::Fixed;
        case DRIVE_REMOTE:
            return DriveKind::Network;
        case DRIVE_CDROM:
            return DriveKind::OpticalDisc;
        case DRIVE_RAMDISK:
            return DriveKind::MemoryDisk;
        default:
            return DriveKind::Unknown;
    }
}

}  // namespace

std::optional<std::string> SystemInformation::ServicePack() const {
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    if (!GetVersionExA(&version)) return std::nullopt;
    return FromAnsi(version.szCSDVersion);
}

std::optional<int> SystemInformation::ProcessorCount() const {
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    return static_cast<int>(system.dwNumberOfProcessors);
}

std::optional<PhysicalMemory> SystemInformation::Memory() const {
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) return std::nullopt;
    return PhysicalMemory{status.ullTotalPhys, status.ullAvailPhys};
}

std::vector<Drive> SystemInformation::Drives() const {
    std::vector<Drive> drives;
    DWORD present = GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter, present >>= 1) {
        if (!(present & 1)) continue;
        const std::string root = std::string(1, letter) + ":\\";
        drives.push_back({root, KindOf(root)});
    }
    return drives;
}

Volume SystemInformation::VolumeOn(std::string_view root) const {
    const NoMediumBox quiet;
    const std::string path = ToAnsi(root);
    Volume volume;
    char label[MAX_PATH + 1] = "";
    char fileSystem[MAX_PATH + 1] = "";
    if (GetVolumeInformationA(path.c_str(), label, sizeof label, nullptr, nullptr, nullptr,
                              fileSystem, sizeof fileSystem)) {
        volume.label = FromAnsi(label);
        volume.fileSystem = FromAnsi(fileSystem);
    }
    ULARGE_INTEGER free = {};
    ULARGE_INTEGER size = {};
    if (GetDiskFreeSpaceExA(path.c_str(), &free, &size, nullptr)) {
        volume.size = size.QuadPart;
        volume.free = free.QuadPart;
    }
    return volume;
}

std::optional<ScreenFormat> SystemInformation::MainScreen() const {
    const HDC screen = GetDC(nullptr);
    if (!screen) return std::nullopt;
    const int depth = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
    ReleaseDC(nullptr, screen);
    return ScreenFormat{GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), depth};
}

std::optional<std::string> SystemInformation::ComputerName() const {
    char name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD size = sizeof name;
    if (!GetComputerNameA(name, &size)) return std::nullopt;
    return FromAnsi(name);
}

}  // namespace platform::win32
