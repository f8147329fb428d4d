#pragma once

#include <string>

namespace platform {

// The directories of the system.
class SystemFacts {
  public:
    virtual ~SystemFacts() = default;

    // GetWindowsDirectoryA and GetSystemDirectoryA, in buffers of 255 characters; without a
    // trailing backslash, "" on failure.
    virtual std::string WindowsDirectory() const = 0;
    virtual std::string SystemDirectory() const = 0;
};

}  // namespace platform
