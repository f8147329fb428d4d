#include "platform/win32/systemfacts.h"

#include <windows.h>

#include "platform/win32/text.h"

namespace platform::win32 {

namespace {

std::string Directory(UINT(WINAPI* ask)(LPSTR, UINT)) {
    char buffer[255];
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

}  // namespace platform::win32
