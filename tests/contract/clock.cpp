#include "platform/clock.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "contract/machine.h"

namespace {

struct ClockFixture {
    contract::TestMachine machine;
    platform::Clock& clock = machine.Services().clock;

    void Pass(int milliseconds) {
        machine.PassTime(milliseconds, [] { return false; });
    }
};

}  // namespace

TEST_CASE_FIXTURE(ClockFixture, "now is a moment of our days") {
    const platform::LocalTime now = clock.Now();
    CHECK(now.year >= 2004);
    CHECK(now.month >= 1);
    CHECK(now.month <= 12);
    CHECK(now.day >= 1);
    CHECK(now.day <= 31);
    CHECK(now.hour >= 0);
    CHECK(now.hour <= 23);
    CHECK(now.minute <= 59);
    CHECK(now.second <= 59);
}

TEST_CASE_FIXTURE(ClockFixture, "the seconds since midnight are those of the time of day") {
    const platform::LocalTime now = clock.Now();
    const float seconds = clock.SecondsSinceMidnight();
    const float whole = static_cast<float>((now.hour * 60 + now.minute) * 60 + now.second);
    // Over midnight they begin anew.
    if (seconds >= whole) {
        CHECK(seconds - whole < 10);
    } else {
        CHECK(whole - seconds > 86380);
    }
}

TEST_CASE_FIXTURE(ClockFixture, "a timer ticks again and again until it is stopped") {
    int ticks = 0;
    const auto timer = clock.StartTimer(20, [&] { ++ticks; });
    CHECK(timer != 0);
    CHECK(machine.PassTime(5000, [&] { return ticks >= 3; }));
    clock.StopTimer(timer);
    const int before = ticks;
    Pass(100);
    CHECK(ticks == before);
}

TEST_CASE_FIXTURE(ClockFixture, "no tick comes from inside the call that starts the timer") {
    int ticks = 0;
    const auto timer = clock.StartTimer(1, [&] { ++ticks; });
    CHECK(ticks == 0);
    clock.StopTimer(timer);
    Pass(50);
    CHECK(ticks == 0);
}

TEST_CASE_FIXTURE(ClockFixture, "a timer that stops itself in its tick ticks once") {
    int ticks = 0;
    platform::Clock::Timer timer = 0;
    // What the tick holds stays alive until it returns.
    const std::string word = "a text that is too long to lie inside the function itself";
    std::string seen;
    timer = clock.StartTimer(10, [&, word] {
        ++ticks;
        clock.StopTimer(timer);
        seen = word;
    });
    Pass(150);
    CHECK(ticks == 1);
    CHECK(seen == word);
}

TEST_CASE_FIXTURE(ClockFixture, "timers run side by side and have numbers of their own") {
    int fast = 0;
    int slow = 0;
    const auto first = clock.StartTimer(20, [&] { ++fast; });
    const auto second = clock.StartTimer(100, [&] { ++slow; });
    CHECK(first != second);
    CHECK(machine.PassTime(5000, [&] { return slow >= 2; }));
    CHECK(fast > slow);
    clock.StopTimer(second);
    const int slowBefore = slow;
    const int fastBefore = fast;
    CHECK(machine.PassTime(5000, [&] { return fast > fastBefore + 6; }));
    CHECK(slow == slowBefore);
    clock.StopTimer(first);
}

TEST_CASE_FIXTURE(ClockFixture, "a tick may start another timer and stop a third") {
    int started = 0;
    int third = 0;
    platform::Clock::Timer starter = 0;
    platform::Clock::Timer other = 0;
    const auto victim = clock.StartTimer(60, [&] { ++third; });
    starter = clock.StartTimer(10, [&] {
        clock.StopTimer(starter);
        clock.StopTimer(victim);
        other = clock.StartTimer(10, [&] { ++started; });
    });
    CHECK(machine.PassTime(5000, [&] { return started >= 2; }));
    Pass(150);
    CHECK(third == 0);
    clock.StopTimer(other);
}

TEST_CASE_FIXTURE(ClockFixture, "a timer does not tick anew while its tick still runs") {
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    const auto timer = clock.StartTimer(10, [&] {
        ++ticks;
        deepest = std::max(deepest, ++depth);
        Pass(40);
        --depth;
    });
    CHECK(machine.PassTime(5000, [&] { return ticks >= 2; }));
    clock.StopTimer(timer);
    CHECK(deepest == 1);
}

TEST_CASE_FIXTURE(ClockFixture, "stopping a timer that does not run is passed over") {
    clock.StopTimer(0);
    clock.StopTimer(4711);
    const auto timer = clock.StartTimer(10, [] {});
    clock.StopTimer(timer);
    clock.StopTimer(timer);
    int ticks = 0;
    const auto next = clock.StartTimer(10, [&] { ++ticks; });
    CHECK(machine.PassTime(5000, [&] { return ticks > 0; }));
    clock.StopTimer(next);
}
