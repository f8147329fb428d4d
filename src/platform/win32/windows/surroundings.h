#pragma once

#include <functional>

#include "platform/win32/eventguard.h"
#include "platform/win32/windows/screen.h"

namespace platform::win32 {

// What every window of the program is handed.
struct Surroundings {
    const Screen& screen;
    platform::Messages& messages;

    // Runs an event of the toolkit from inside a window procedure.
    void Guard(const std::function<void()>& event) const { GuardEvent(messages, event); }
};

}  // namespace platform::win32
