#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

enum class DriveKind { Unknown, Removable, Fixed, Network, OpticalDisc, MemoryDisk };

struct Drive {
    // "C:\".
    std::string root;
    DriveKind kind = DriveKind::Unknown;
};

// What a drive holds at the moment. Each item is asked for by itself and may be missing.
struct Volume {
    std::optional<std::string> fileSystem;
    // Bytes. What is free is what the user may fill.
    std::optional<std::uint64_t> size;
    std::optional<std::uint64_t> free;
    // What the user has called it; "" for a volume without a name.
    std::optional<std::string> label = std::nullopt;
};

// Bytes.
struct PhysicalMemory {
    std::uint64_t total = 0;
    std::uint64_t free = 0;
};

// Pixels, and bits a pixel.
struct ScreenFormat {
    int width = 0;
    int height = 0;
    int colourDepth = 0;
};

// Facts of the machine for the user to read. What the system does not tell is no value.
class SystemInformation {
  public:
    virtual ~SystemInformation() = default;

    // GetVersionExA; "" when none is installed.
    virtual std::optional<std::string> ServicePack() const = 0;
    // GetSystemInfo.
    virtual std::optional<int> ProcessorCount() const = 0;
    // GlobalMemoryStatusEx.
    virtual std::optional<PhysicalMemory> Memory() const = 0;
    // GetLogicalDrives and GetDriveTypeA, in the order of the letters; there is always one, so an
    // empty list is what the system does not tell.
    virtual std::vector<Drive> Drives() const = 0;
    // GetVolumeInformationA and GetDiskFreeSpaceExA. Asks no user to put in a medium.
    virtual Volume VolumeOn(std::string_view root) const = 0;
    // GetSystemMetrics and GetDeviceCaps, of the main screen.
    virtual std::optional<ScreenFormat> MainScreen() const = 0;
    // GetComputerNameA.
    virtual std::optional<std::string> ComputerName() const = 0;
};

}  // namespace platform
