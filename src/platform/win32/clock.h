#pragma once

#include <map>
#include <memory>

#include "platform/clock.h"
#include "platform/win32/hiddenwindow.h"

namespace platform {
class Messages;
}

namespace platform::win32 {

// Ticks come through the message loop of the thread that started the timer. A timer whose tick is
// still running (a message box is open in it) does not tick anew until it returns.
class Clock final : public platform::Clock {
  public:
    explicit Clock(platform::Messages& messages);

    LocalTime Now() const override;
    float SecondsSinceMidnight() const override;
    Timer StartTimer(int milliseconds, std::function<void()> tick) override;
    void StopTimer(Timer timer) override;

  private:
    struct Running {
        std::function<void()> tick;
        bool ticking = false;
    };

    void Tick(Timer timer);

    platform::Messages& messages_;
    std::map<Timer, std::shared_ptr<Running>> timers_;
    Timer next_ = 1;
    HiddenWindow window_;
};

}  // namespace platform::win32
