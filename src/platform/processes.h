#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

// Processes started by command line.
class Processes {
  public:
    // 0 is no process.
    using Handle = std::uintptr_t;

    // The record that goes into CreateProcessA, as far as the program fills it; the rest is zero.
    struct StartupInfo {
        std::uint32_t cb = 0;
        std::uint32_t dwFlags = 0;
        std::uint16_t wShowWindow = 0;
    };

    virtual ~Processes() = default;

    // CreateProcessA with no application name, inherited handles and the given creation flags.
    // Returns 0 when the process cannot be started. The thread's handle is the callee's business.
    virtual Handle Create(std::string_view commandLine, std::uint32_t creationFlags,
                          const StartupInfo& startup) = 0;

    // Starts a process by command line and does not wait: CreateProcessA with nothing inherited and
    // the window style (0 hidden, 1 normal, ...) in the startup record; all handles are closed.
    // Throws Failure FileNotFound, PathNotFound, PermissionDenied, or InvalidProcedureCall for
    // everything else, such as a file that is no program.
    virtual void Start(std::string_view commandLine, std::int32_t windowStyle) = 0;

    // WaitForSingleObject without a limit: blocks, and lets no event through. Returns at once for
    // a handle that is none.
    virtual void WaitForEnd(Handle process) = 0;

    // CloseHandle; false for a handle that is none.
    virtual bool Close(Handle process) = 0;
};

}  // namespace platform
