#pragma once

#include <string_view>

#include "timesync/date.h"

namespace platform {
class Network;
class SystemClock;
}  // namespace platform

namespace timesync {

// Date and local time of the Windows computer of that name, which may have its two backslashes in
// front or not; without a name, of this computer. 0, the zero date, when it does not answer.
// Throws what DateOf throws when the answer is no date.
Date GetRemoteDateTime(const platform::Network& network, std::string_view ServerName);

// Sets the clock, first the local date and then the local time.
// Throws Failure PermissionDenied when the system refuses.
void SetLocalClock(platform::SystemClock& clock, Date date);

// Sets the clock by the computer named "\\TIMESERVER"; without an answer nothing happens. Nothing
// in the program asks for it: it is there for networks that have such a computer.
void SetSystemDateTime(const platform::Network& network, platform::SystemClock& clock);

}  // namespace timesync
