#include "platform/win32/program.h"

#include <windows.h>

#include <string_view>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

bool IsBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

// The executable's full path.
std::wstring ExecutablePath() {
    wchar_t buffer[MAX_PATH];
    return {buffer, GetModuleFileNameW(nullptr, buffer, MAX_PATH)};
}

}  // namespace

std::wstring_view ArgumentsOf(std::wstring_view commandLine) {
    bool quoted = false;
    std::size_t at = 0;
    while (at < commandLine.size() && (quoted || !IsBlank(commandLine[at]))) {
        if (commandLine[at] == L'"') quoted = !quoted;
        ++at;
    }
    while (at < commandLine.size() && IsBlank(commandLine[at])) ++at;
    return commandLine.substr(at);
}

std::string Program::Directory() const {
    const std::wstring path = ExecutablePath();
    return FromWide(path.substr(0, path.find_last_of(L'\\')));
}

std::string Program::ExecutableName() const {
    const std::wstring path = ExecutablePath();
    const std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
    return FromWide(name.substr(0, name.find_last_of(L'.')));
}

std::string Program::CommandLine() const {
    return FromWide(ArgumentsOf(GetCommandLineW()));
}

void Program::End() {
    ExitProcess(0);
}

}  // namespace platform::win32
