#include "platform/win32/processes.h"

#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {

static_assert(Processes::HiddenWindow == SW_HIDE && Processes::NormalWindow == SW_SHOWNORMAL);
static_assert(Processes::StillActive == STILL_ACTIVE);

namespace {

int FailureNumberOf(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return runtime::FileNotFound;
        case ERROR_PATH_NOT_FOUND:
            return runtime::PathNotFound;
        case ERROR_ACCESS_DENIED:
            return runtime::PermissionDenied;
        default:
            return runtime::InvalidProcedureCall;
    }
}

}  // namespace

Processes::Handle Processes::Create(std::string_view commandLine, std::uint32_t creationFlags,
                                    const StartupInfo& startup) {
    // The call writes into the command line for a moment, so it gets a copy.
    std::string line = ToAnsi(commandLine);
    STARTUPINFOA record = {};
    record.cb = startup.cb;
    record.dwFlags = startup.dwFlags;
    record.wShowWindow = startup.wShowWindow;
    PROCESS_INFORMATION started = {};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, creationFlags, nullptr,
                        nullptr, &record, &started)) {
        return 0;
    }
    // The handle of the thread stays open, on purpose: the program starts a handful of processes in
    // its life, and the handles go with it.
    return reinterpret_cast<Handle>(started.hProcess);
}

std::uint32_t Processes::Start(std::string_view commandLine, std::int32_t windowStyle) {
    std::string line = ToAnsi(commandLine);
    STARTUPINFOA record = {};
    record.cb = sizeof record;
    record.dwFlags = STARTF_USESHOWWINDOW;
    record.wShowWindow = static_cast<WORD>(windowStyle);
    PROCESS_INFORMATION started = {};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &record,
                        &started)) {
        throw runtime::Failure(FailureNumberOf(GetLastError()));
    }
    KernelHandle(started.hThread).Close();
    KernelHandle(started.hProcess).Close();
    return started.dwProcessId;
}

Processes::Handle Processes::Open(std::uint32_t access, std::uint32_t processId) {
    return reinterpret_cast<Handle>(OpenProcess(access, FALSE, processId));
}

std::optional<std::uint32_t> Processes::ExitCode(Handle process) {
    DWORD code = 0;
    if (!GetExitCodeProcess(reinterpret_cast<HANDLE>(process), &code)) return std::nullopt;
    return code;
}

void Processes::WaitForEnd(Handle process) {
    WaitForSingleObject(reinterpret_cast<HANDLE>(process), INFINITE);
}

bool Processes::Close(Handle process) {
    return KernelHandle(reinterpret_cast<HANDLE>(process)).Close();
}

}  // namespace platform::win32
