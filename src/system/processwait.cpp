#include "system/processwait.h"

#include "platform/machine.h"
#include "platform/processes.h"
#include "toolkit/form.h"

namespace sys {
namespace {

using platform::Processes;

Processes::Handle Open(Processes& processes, std::int32_t processId) {
    return processes.Open(Processes::AllAccess, static_cast<std::uint32_t>(processId));
}

}  // namespace

bool IsProcessActive(Processes& processes, std::int32_t processId) {
    const auto process = Open(processes, processId);
    const auto code = processes.ExitCode(process);
    processes.Close(process);
    return code == Processes::StillActive;
}

bool WaitForProcessEnd(const platform::Machine& machine, std::int32_t processId) {
    Processes& processes = machine.processes;
    const auto process = Open(processes, processId);
    auto code = processes.ExitCode(process);
    while (code == Processes::StillActive) {
        machine.forms.DoEvents();
        code = processes.ExitCode(process);
    }
    processes.Close(process);
    return code.value_or(0) != 0;
}

bool ShellWait(Processes& processes, std::string_view cmdline, bool bShowApp) {
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
