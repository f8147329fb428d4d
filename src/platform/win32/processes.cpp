#include "platform/win32/processes.h"

#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace platform::win32 {

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

void Processes::WaitForEnd(Handle process) {
    WaitForSingleObject(reinterpret_cast<HANDLE>(process), INFINITE);
}

bool Processes::Close(Handle process) {
    return KernelHandle(reinterpret_cast<HANDLE>(process)).Close();
}

}  // namespace platform::win32
