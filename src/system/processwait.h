#pragma once

#include <cstdint>
#include <string_view>

namespace platform {
class Processes;
struct Machine;
}  // namespace platform

namespace sys {

// Whether the process still runs. An id that belongs to no process any more has ended.
bool IsProcessActive(platform::Processes& processes, std::int32_t processId);

// Waits for the end of a process, without a limit, and lets events through meanwhile: whoever calls
// it may be called again before it returns. True when the process reported a failure, which is an
// exit code other than 0. A process that has gone before it could be asked counts as well ended.
bool WaitForProcessEnd(const platform::Machine& machine, std::int32_t processId);

// Starts a process and blocks until it has ended, without a limit; no event gets through meanwhile.
// `bShowApp` asks for a visible window. The result is that of closing the process' handle, so it is
// false when the start failed, which is not looked at by itself.
bool ShellWait(platform::Processes& processes, std::string_view cmdline, bool bShowApp);

}  // namespace sys
