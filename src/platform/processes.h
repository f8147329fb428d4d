#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

// Processes started by command line.
class Processes {
  public:
    // 0 is no process.
    using Handle = std::uintptr_t;

    static constexpr std::uint32_t StillActive = 259;
    // All that XP lets one do with a process.
    static constexpr std::uint32_t AllAccess = 0x1F0FFF;

    // The ways to show a process's first window.
    static constexpr std::int32_t HiddenWindow = 0;
    static constexpr std::int32_t NormalWindow = 1;

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
    // the window style in the startup record; all handles are closed. Returns the process's id,
    // which stands for it as long as it runs.
    // Throws Failure FileNotFound, PathNotFound, PermissionDenied, or InvalidProcedureCall for
    // everything else, such as a file that is no program.
    virtual std::uint32_t Start(std::string_view commandLine, std::int32_t windowStyle) = 0;

    // OpenProcess, nothing inherited: 0 for an id that belongs to no process, and for one that may
    // not be opened so. A process that has ended may still be there for a while.
    virtual Handle Open(std::uint32_t access, std::uint32_t processId) = 0;

    // GetExitCodeProcess: StillActive as long as the process runs. Nothing for a handle that is
    // none.
    virtual std::optional<std::uint32_t> ExitCode(Handle process) = 0;

    // WaitForSingleObject without a limit: blocks, and lets no event through. Returns at once for
    // a handle that is none.
    virtual void WaitForEnd(Handle process) = 0;

    // CloseHandle; false for a handle that is none.
    virtual bool Close(Handle process) = 0;
};

}  // namespace platform
