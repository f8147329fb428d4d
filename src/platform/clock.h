#pragma once

#include <cstdint>
#include <functional>

namespace platform {

// A moment in local time.
struct LocalTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const LocalTime&) const = default;
};

// The time of day, and timers whose ticks arrive on the user-interface thread.
class Clock {
  public:
    using Timer = std::uint32_t;

    virtual ~Clock() = default;

    virtual LocalTime Now() const = 0;
    // Of the same local day, with their fraction.
    virtual float SecondsSinceMidnight() const = 0;

    // Calls `tick` every `milliseconds` until StopTimer, but not while the tick before still runs.
    // Never 0.
    // Throws Failure OutOfMemory when the system has no timer left.
    virtual Timer StartTimer(int milliseconds, std::function<void()> tick) = 0;
    // A timer may stop itself from its own tick; one that does not run is passed over.
    virtual void StopTimer(Timer timer) = 0;
};

}  // namespace platform
