#pragma once

#include "platform/clock.h"

namespace platform {

// Sets the computer's clock.
class SystemClock {
  public:
    virtual ~SystemClock() = default;

    // SetSystemTime with a moment in UTC, its day of the week and milliseconds 0. Whether the
    // system refuses is not passed on, as nobody asks.
    virtual void SetSystemTime(const LocalTime& utc) = 0;

    // Each sets its half of the local time and keeps the other.
    // Throws Failure PermissionDenied when the system refuses.
    virtual void SetLocalDate(const LocalTime& date) = 0;
    virtual void SetLocalTime(const LocalTime& time) = 0;
};

}  // namespace platform
