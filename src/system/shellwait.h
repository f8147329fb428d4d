#pragma once

#include <string_view>

#include "platform/processes.h"

namespace sys {

// Starts a process and blocks until it has ended, without a limit; no event gets through meanwhile.
// `bShowApp` asks for a visible window. The result is that of closing the process' handle, so it is
// false when the start failed, which is not looked at by itself.
bool ShellWait(platform::Processes& processes, std::string_view cmdline, bool bShowApp);

}  // namespace sys
