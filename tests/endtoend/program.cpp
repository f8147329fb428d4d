#include "endtoend/program.h"

#include <windows.h>

#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::ToWide;

PROCESS_INFORMATION Start(const std::string& path, const std::string& arguments) {
    std::wstring line = L'"' + ToWide(path) + L'"';
    if (!arguments.empty()) line += L' ' + ToWide(arguments);
    const std::wstring folder = ToWide(path.substr(0, path.find_last_of('\\')));
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(ToWide(path).c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        folder.c_str(), &startup, &started)) {
        throw Failed("cannot start " + path);
    }
    CloseHandle(started.hThread);
    return started;
}

}  // namespace

Program::Program(const std::string& path, const std::string& arguments)
    : Program(Start(path, arguments)) {}

Program::Program(const PROCESS_INFORMATION& started)
    : Application(started.dwProcessId), process_(started.hProcess) {}

Program::~Program() {
    if (!process_ || !Running()) return;
    TerminateProcess(process_.Get(), 99);
    WaitForSingleObject(process_.Get(), Patience);
}

bool Program::Running() const {
    return WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT;
}

void Program::WaitIdle() const {
    WaitForInputIdle(process_.Get(), Patience);
}

DWORD Program::WaitForEnd() const {
    if (WaitForSingleObject(process_.Get(), Patience) != WAIT_OBJECT_0) {
        throw Failed("the program does not end");
    }
    DWORD code = 0;
    GetExitCodeProcess(process_.Get(), &code);
    return code;
}

void Program::CloseAndWait() const {
    Close();
    WaitForEnd();
}

}  // namespace endtoend
