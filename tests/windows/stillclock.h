#pragma once

#include "platform/clock.h"

namespace windows {

// A clock whose timers never tick, so that a button stays as it is.
class StillClock final : public platform::Clock {
  public:
    platform::LocalTime Now() const override { return {}; }
    float SecondsSinceMidnight() const override { return 0; }
    Timer StartTimer(int, std::function<void()>) override { return 1; }
    void StopTimer(Timer) override {}
};

}  // namespace windows
