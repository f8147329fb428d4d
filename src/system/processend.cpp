#include "system/processend.h"

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

}  // namespace sys
