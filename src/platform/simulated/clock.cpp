#include "platform/simulated/clock.h"

#include <algorithm>

#include "platform/simulated/faults.h"

namespace platform::simulated {
namespace {

int DaysIn(int month, int year) {
    constexpr int Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : Days[month - 1];
}

void AddDay(LocalTime& time) {
    if (++time.day <= DaysIn(time.month, time.year)) return;
    time.day = 1;
    if (++time.month <= 12) return;
    time.month = 1;
    ++time.year;
}

void MoveOn(LocalTime& time, long long seconds) {
    constexpr int Day = 24 * 60 * 60;
    seconds += time.hour * 3600 + time.minute * 60 + time.second;
    for (; seconds >= Day; seconds -= Day) AddDay(time);
    int rest = static_cast<int>(seconds);
    time.hour = rest / 3600;
    time.minute = rest / 60 % 60;
    time.second = rest % 60;
}

}  // namespace

LocalTime Clock::Now() const {
    journal_.Note([] { return std::string("GetLocalTime"); });
    return now;
}

float Clock::SecondsSinceMidnight() const {
    journal_.Note([] { return std::string("GetLocalTime"); });
    const int seconds = now.hour * 3600 + now.minute * 60 + now.second;
    return static_cast<float>(seconds) + static_cast<float>(elapsed_ % 1000) / 1000;
}

void Clock::AddSeconds(long long seconds) {
    MoveOn(now, seconds);
}

Clock::Timer Clock::StartTimer(int milliseconds, std::function<void()> tick) {
    auto line = journal_.Note([&] { return "SetTimer " + std::to_string(milliseconds); });
    PassOrThrow(journal_, faults_, line, "SetTimer", "");
    int interval = std::max(milliseconds, 1);
    timers_[next_] = {interval, elapsed_ + interval, std::move(tick)};
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

void Clock::StopTimer(Timer timer) {
    journal_.Note([&] { return "KillTimer #" + std::to_string(timer); });
    timers_.erase(timer);
}

void Clock::Advance(int milliseconds) {
    long long end = elapsed_ + milliseconds;
    while (!timers_.empty()) {
        auto next = std::min_element(
            timers_.begin(), timers_.end(),
            [](const auto& left, const auto& right) { return left.second.due < right.second.due; });
        Running& timer = next->second;
        if (timer.due > end) break;
        MoveTo(timer.due);
        timer.due += timer.interval;
        Tick(next->first);
    }
    MoveTo(end);
}

void Clock::Tick(Timer timer) {
    const auto mark = [&](bool ticking) {
        if (auto running = timers_.find(timer); running != timers_.end()) {
            running->second.ticking = ticking;
        }
    };
    Running& running = timers_.at(timer);
    if (running.ticking || !running.tick) return;
    mark(true);
    // A tick may stop its own timer, which ends the original.
    auto tick = running.tick;
    try {
        tick();
    } catch (...) {
        mark(false);
        throw;
    }
    mark(false);
}

void Clock::MoveTo(long long moment) {
    if (moment <= elapsed_) return;
    AddSeconds(moment / 1000 - elapsed_ / 1000);
    elapsed_ = moment;
}

}  // namespace platform::simulated
