// The second program of the suite; child.h tells what it does.

#include <windows.h>

#include <cstdlib>
#include <string>

#include "platform/win32/files.h"
#include "platform/win32/program.h"

namespace {

void Append(const std::string& path, const std::string& text) {
    platform::win32::Files files;
    files.Write(files.OpenForAppend(path), text);
}

// Wine makes no process of such a program, but hands out and closes as its handles what happened to
// lie in their place. So only a process may do this that ends at once.
void StartUnix(std::wstring commandLine) {
    const std::wstring program =
        L"\\\\?\\unix\\bin\\" + commandLine.substr(0, commandLine.find(L' '));
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                   nullptr, &startup, &process);
}

}  // namespace

int main() {
    platform::win32::Program program;
    const std::string line = program.CommandLine();
    const std::string verb = line.substr(0, line.find(' '));
    const std::string rest = line.substr(line.find(' ') + 1);
    const std::string first = rest.substr(0, rest.find(' '));
    if (verb == "sleep") {
        Sleep(static_cast<DWORD>(std::atoi(first.c_str())));
    } else if (verb == "line") {
        Append(first, line);
    } else if (verb == "style") {
        STARTUPINFOW startup;
        GetStartupInfoW(&startup);
        Append(first, "flags " + std::to_string(startup.dwFlags) + " show " +
                          std::to_string(startup.wShowWindow));
    } else if (verb == "unix") {
        const std::wstring wide(platform::win32::ArgumentsOf(GetCommandLineW()));
        StartUnix(wide.substr(wide.find(L' ') + 1));
    } else if (verb == "end") {
        program.End();
        Append(first, "lived on");
    }
    return 7;
}
