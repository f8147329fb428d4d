#include "platform/win32/operatingsystem.h"

#include <windows.h>

#include "runtime/failure.h"

namespace platform::win32 {

std::string NameOfWindows(int major, int minor) {
    struct Known {
        int major;
        int minor;
        const char* name;
    };
    static constexpr Known names[] = {
        {5, 0, "Microsoft Windows 2000"},
        {5, 1, "Microsoft Windows XP"},
        {5, 2, "Microsoft Windows Server 2003"},
    };
    for (const Known& known : names) {
        if (known.major == major && known.minor == minor) return known.name;
    }
    return "Microsoft Windows " + std::to_string(major) + '.' + std::to_string(minor);
}

OperatingSystemFacts OperatingSystem::Facts() const {
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    if (!GetVersionExA(&version)) throw runtime::Failure(runtime::CannotCreateObject);
    const int major = static_cast<int>(version.dwMajorVersion);
    const int minor = static_cast<int>(version.dwMinorVersion);
    return {NameOfWindows(major, minor), major, minor, static_cast<int>(version.dwBuildNumber)};
}

}  // namespace platform::win32
