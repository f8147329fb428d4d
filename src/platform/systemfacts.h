#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// In bytes.
struct DiskSpace {
    std::uint64_t freeToUser = 0;
    std::uint64_t total = 0;
    std::uint64_t free = 0;

    bool operator==(const DiskSpace&) const = default;
};

// The directories of the system, its user and its drives.
class SystemFacts {
  public:
    virtual ~SystemFacts() = default;

    // GetWindowsDirectoryA and GetSystemDirectoryA, in buffers of 255 characters; without a
    // trailing backslash, also in the root of a drive, as all that is put behind begins with one;
    // "" on failure.
    virtual std::string WindowsDirectory() const = 0;
    virtual std::string SystemDirectory() const = 0;

    // GetTempPathA in a buffer of 255 characters, as it is told, which is with a trailing
    // backslash; "" on failure. Nobody promises that the directory is there.
    virtual std::string TempPath() const = 0;

    // GetUserNameA in a buffer of 255 characters, the NUL among them; "" on failure, a longer name
    // being one.
    virtual std::string UserName() const = 0;

    // ExpandEnvironmentStringsA, first for the size and then into a buffer of that size. What is no
    // variable of the process stays as it is. "" on failure.
    virtual std::string ExpandEnvironment(std::string_view text) const = 0;

    // GetDiskFreeSpaceExA of the drive on which the directory lies; zeros on failure, a drive
    // without a medium being one. No box asks for the medium.
    virtual DiskSpace Space(std::string_view directory) const = 0;
};

}  // namespace platform
