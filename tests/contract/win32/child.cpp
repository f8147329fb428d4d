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
    } else if (verb == "end") {
        program.End();
        Append(first, "lived on");
    }
    return 7;
}
