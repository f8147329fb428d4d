#include "platform/win32/clock.h"

#include "platform/win32/eventguard.h"
#include "runtime/failure.h"

namespace platform::win32 {

Clock::Clock(platform::Messages& messages)
    : messages_(messages), window_([this](UINT message, WPARAM wParam, LPARAM) {
          if (message == WM_TIMER) Tick(static_cast<Timer>(wParam));
      }) {}

LocalTime Clock::Now() const {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

float Clock::SecondsSinceMidnight() const {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    const int milliseconds =
        ((now.wHour * 60 + now.wMinute) * 60 + now.wSecond) * 1000 + now.wMilliseconds;
    return static_cast<float>(milliseconds) / 1000;
}

Clock::Timer Clock::StartTimer(int milliseconds, std::function<void()> tick) {
    const Timer timer = next_++;
    const HWND window = window_.Get();
    // Without a window the ticks would reach nobody.
    if (!window || !SetTimer(window, timer, static_cast<UINT>(milliseconds), nullptr)) {
        throw runtime::Failure(runtime::OutOfMemory);
    }
    timers_[timer] = std::make_shared<Running>(Running{std::move(tick)});
    return timer;
}

void Clock::StopTimer(Timer timer) {
    if (timers_.erase(timer) != 0) KillTimer(window_.Get(), timer);
}

void Clock::Tick(Timer timer) {
    const auto found = timers_.find(timer);
    // The message of a timer that was stopped may still have been under way.
    if (found == timers_.end() || found->second->ticking) return;
    // A share of its own keeps the tick alive while it stops itself.
    const std::shared_ptr<Running> running = found->second;
    running->ticking = true;
    GuardEvent(messages_, running->tick);
    running->ticking = false;
}

}  // namespace platform::win32
