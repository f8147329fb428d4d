#include "platform/simulated/clock.h"

#include <doctest/doctest.h>

#include <string>

#include "platform/simulated/machine.h"

using platform::LocalTime;

namespace {

struct Time {
    platform::simulated::Machine machine;
    platform::simulated::Clock& clock = machine.clock;
    std::string ticks;

    std::string Shown() {
        return machine.locale.ShortDate(clock.now) + " " + machine.locale.LongTime(clock.now);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Time, "time stands still until it is moved") {
    CHECK(Shown() == "05.03.2004 14:07:09");
    clock.Advance(900);
    CHECK(Shown() == "05.03.2004 14:07:09");
    clock.Advance(100);
    CHECK(clock.Now().second == 10);
    clock.Advance(-5000);
    CHECK(Shown() == "05.03.2004 14:07:10");
}

TEST_CASE_FIXTURE(Time, "time runs over midnight, the ends of months, leap days and years") {
    clock.now = {2004, 2, 28, 23, 59, 59};
    clock.Advance(1000);
    CHECK(Shown() == "29.02.2004 00:00:00");
    clock.Advance(86'400'000);
    CHECK(Shown() == "01.03.2004 00:00:00");
    clock.now = {2003, 2, 28, 23, 59, 59};
    clock.Advance(1000);
    CHECK(Shown() == "01.03.2003 00:00:00");
    clock.now = {2000, 2, 28, 23, 59, 59};
    clock.Advance(1000);
    CHECK(Shown() == "29.02.2000 00:00:00");
    clock.now = {2100, 2, 28, 23, 59, 59};
    clock.Advance(1000);
    CHECK(Shown() == "01.03.2100 00:00:00");
    clock.now = {2004, 12, 31, 23, 59, 30};
    clock.Advance(60'000);
    CHECK(Shown() == "01.01.2005 00:00:30");
}

TEST_CASE_FIXTURE(Time, "a timer ticks at each end of its interval") {
    int count = 0;
    clock.StartTimer(1000, [&] { ++count; });
    clock.Advance(999);
    CHECK(count == 0);
    clock.Advance(1);
    CHECK(count == 1);
    clock.Advance(3500);
    CHECK(count == 4);
}

TEST_CASE_FIXTURE(Time, "ticks of several timers come in the order of their time") {
    clock.StartTimer(30, [&] { ticks += 'c'; });
    clock.StartTimer(20, [&] { ticks += 'b'; });
    clock.StartTimer(10, [&] { ticks += 'a'; });
    clock.Advance(30);
    CHECK(ticks == "abaca");
}

TEST_CASE_FIXTURE(Time, "a tick sees the time at which it falls due") {
    int second = 0;
    clock.StartTimer(2000, [&] { second = clock.Now().second; });
    clock.Advance(3000);
    CHECK(second == 11);
    CHECK(clock.Now().second == 12);
}

TEST_CASE_FIXTURE(Time, "a timer may stop itself from its own tick, and others too") {
    platform::Clock::Timer first = 0;
    platform::Clock::Timer second = clock.StartTimer(20, [&] { ticks += 'b'; });
    first = clock.StartTimer(10, [&] {
        ticks += 'a';
        clock.StopTimer(first);
        clock.StopTimer(second);
        ticks += '.';
    });
    clock.Advance(1000);
    CHECK(ticks == "a.");
    CHECK(clock.RunningTimers() == 0);
}

TEST_CASE_FIXTURE(Time, "a timer started by a tick counts from that tick") {
    platform::Clock::Timer first = 0;
    first = clock.StartTimer(10, [&] {
        clock.StopTimer(first);
        clock.StartTimer(15, [&] { ticks += 'n'; });
    });
    clock.Advance(24);
    CHECK(ticks == "");
    clock.Advance(1);
    CHECK(ticks == "n");
}

TEST_CASE_FIXTURE(Time, "a tick may move time itself, and time does not go back behind it") {
    int count = 0;
    bool busy = false;
    clock.StartTimer(10, [&] { ++count; });
    clock.StartTimer(1000, [&] {
        if (busy) return;
        busy = true;
        clock.now.hour = 15;
        clock.Advance(50);
    });
    clock.Advance(1000);
    CHECK(count == 105);
    CHECK(clock.now.hour == 15);
}

TEST_CASE_FIXTURE(Time, "an interval of nothing or less counts as one millisecond") {
    int count = 0;
    clock.StartTimer(0, [&] { ++count; });
    clock.StartTimer(-5, [&] { ++count; });
    clock.Advance(3);
    CHECK(count == 6);
}

TEST_CASE_FIXTURE(Time, "a timer is never 0, and stopping one that does not run does nothing") {
    auto timer = clock.StartTimer(10, [] {});
    CHECK(timer != 0);
    CHECK(clock.StartTimer(10, {}) != timer);
    clock.StopTimer(timer);
    clock.StopTimer(timer);
    clock.StopTimer(4711);
    CHECK(clock.RunningTimers() == 1);
    clock.Advance(100);
    CHECK(machine.journal.Calls("SetTimer").front() == "SetTimer 10 -> #1");
    CHECK(machine.journal.Calls("KillTimer").back() == "KillTimer #4711");
}
