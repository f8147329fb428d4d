#pragma once

#include <functional>

namespace platform {
class Messages;
}

namespace platform::win32 {

// Runs an event of the program from inside a window procedure or a timer callback, across which no
// exception may pass. A failure that no policy of the program caught ends here, in the platform's
// default message: title "Quillmore", "Laufzeitfehler '<number>':", an empty line and the
// description, critical icon. The program goes on.
void GuardEvent(platform::Messages& messages, const std::function<void()>& event);

}  // namespace platform::win32
