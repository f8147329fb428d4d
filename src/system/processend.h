#pragma once

#include <cstdint>

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

}  // namespace sys
