#include "system/shellwait.h"

namespace sys {

bool ShellWait(platform::Processes& processes, std::string_view cmdline, bool bShowApp) {
    using platform::Processes;
    constexpr std::uint32_t normalPriorityClass = 32;
    constexpr std::uint32_t useShowWindow = 1;
    const Processes::StartupInfo startup{
        // Two less than the platform's record has, on purpose: the record as this program counts
        // it. The platform does not mind.
        .cb = 66,
        .dwFlags = useShowWindow,
        .wShowWindow = static_cast<std::uint16_t>(bShowApp ? Processes::NormalWindow
                                                           : Processes::HiddenWindow),
    };
    const auto process = processes.Create(cmdline, normalPriorityClass, startup);
    processes.WaitForEnd(process);
    return processes.Close(process);
}

}  // namespace sys
