#include "platform/win32/session.h"

#include "platform/win32/handle.h"

namespace platform::win32 {
namespace {

// Restarting and switching off need a privilege that an administrator's token holds disabled.
// Without it the system refuses the exit, which is no failure.
void EnableShutdownPrivilege() {
    KernelHandle token;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                          token.Out())) {
        return;
    }
    TOKEN_PRIVILEGES privileges = {};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (!LookupPrivilegeValueW(nullptr, SE_SHUTDOWN_NAME, &privileges.Privileges[0].Luid)) return;
    AdjustTokenPrivileges(token.Get(), FALSE, &privileges, 0, nullptr, nullptr);
}

}  // namespace

std::optional<std::uint32_t> ExitFlags(std::int32_t action, std::int32_t force) {
    const std::uint32_t forced = force == 1 ? EWX_FORCE : 0;
    switch (action) {
        case platform::Session::Restart:
            return EWX_REBOOT | forced;
        case platform::Session::LogOff:
            return EWX_LOGOFF | forced;
        case platform::Session::ShutDown:
            return EWX_POWEROFF | forced;
        default:
            return std::nullopt;
    }
}

void Session::ExitSession(std::int32_t action, std::int32_t force) {
    const auto flags = ExitFlags(action, force);
    if (!flags) return;
    EnableShutdownPrivilege();
    ExitWindowsEx(*flags, SHTDN_REASON_MAJOR_APPLICATION | SHTDN_REASON_FLAG_PLANNED);
}

}  // namespace platform::win32
