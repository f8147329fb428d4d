#pragma once

#include <map>

#include "platform/clock.h"

namespace platform::simulated {

class Faults;
class Journal;

// Time that stands still until a test moves it.
class Clock final : public platform::Clock {
  public:
    Clock(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    LocalTime Now() const override;
    float SecondsSinceMidnight() const override;
    Timer StartTimer(int milliseconds, std::function<void()> tick) override;
    void StopTimer(Timer timer) override;

    // Moves time on and raises the ticks that fall due, in their order. A tick may move time
    // itself, as a handler does that opens a message box: other ticks then come within it.
    void Advance(int milliseconds);
    // Only the time told, without any tick.
    void AddSeconds(long long seconds);
    int RunningTimers() const { return static_cast<int>(timers_.size()); }

    LocalTime now{2004, 3, 5, 14, 7, 9};

  private:
    struct Running {
        int interval;
        long long due;
        std::function<void()> tick;
        bool ticking = false;
    };
    void Tick(Timer timer);
    void MoveTo(long long moment);

    Journal& journal_;
    Faults& faults_;
    // Milliseconds since the machine was made.
    long long elapsed_ = 0;
    Timer next_ = 1;
    std::map<Timer, Running> timers_;
};

}  // namespace platform::simulated
