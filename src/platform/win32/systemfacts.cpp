#include "platform/win32/systemfacts.h"

#include <windows.h>

#include "platform/win32/nomediumbox.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

constexpr DWORD BufferSize = 255;

std::string Directory(UINT(WINAPI* ask)(LPSTR, UINT)) {
    char buffer[BufferSize];
    const UINT length = ask(buffer, sizeof buffer);
    // A path that does not fit is answered with the size that it needs.
    if (length >= sizeof buffer) return "";
    std::string_view path(buffer, length);
    // Only a root directory comes with a backslash at its end.
    if (path.ends_with('\\')) path.remove_suffix(1);
    return FromAnsi(path);
}

}  // namespace

std::string SystemFacts::WindowsDirectory() const {
    return Directory(GetWindowsDirectoryA);
}

std::string SystemFacts::SystemDirectory() const {
    return Directory(GetSystemDirectoryA);
}

std::string SystemFacts::TempPath() const {
    char buffer[BufferSize];
    const DWORD length = GetTempPathA(BufferSize, buffer);
    return length >= BufferSize ? "" : FromAnsi({buffer, length});
}

std::string SystemFacts::UserName() const {
    char buffer[BufferSize];
    // In: what there is room for. Out: what was used, with the NUL.
    DWORD length = BufferSize;
    if (!GetUserNameA(buffer, &length) || length == 0) return "";
    return FromAnsi({buffer, length - 1});
}

std::string SystemFacts::ExpandEnvironment(std::string_view text) const {
    const std::string bytes = ToAnsi(text);
    std::string buffer(ExpandEnvironmentStringsA(bytes.c_str(), nullptr, 0), '\0');
    ExpandEnvironmentStringsA(bytes.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
    // The size counts the NUL, and on some systems more than that.
    return FromAnsi(buffer.substr(0, buffer.find('\0')));
}

DiskSpace SystemFacts::Space(std::string_view directory) const {
    const NoMediumBox quiet;
    ULARGE_INTEGER freeToUser = {}, total = {}, free = {};
    if (!GetDiskFreeSpaceExA(ToAnsi(directory).c_str(), &freeToUser, &total, &free)) return {};
    return {freeToUser.QuadPart, total.QuadPart, free.QuadPart};
}

}  // namespace platform::win32
