#include "platform/systemclock.h"

#include <doctest/doctest.h>

#include <cstdlib>

#include "contract/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

using platform::LocalTime;

constexpr LocalTime Moment{2026, 11, 21, 16, 5, 9};

struct SystemClockFixture {
    contract::TestMachine machine;
    platform::SystemClock& clock = machine.NotingClock();

    LocalTime Told() {
        REQUIRE(machine.ClockSettings().size() == 1);
        return machine.ClockSettings().front().moment;
    }
    // Of two moments the distance in seconds on the dial, whatever their days.
    static int DialDistance(const LocalTime& left, const LocalTime& right) {
        constexpr int Day = 86400;
        const auto seconds = [](const LocalTime& time) {
            return (time.hour * 60 + time.minute) * 60 + time.second;
        };
        const int distance = std::abs(seconds(left) - seconds(right));
        return distance < Day / 2 ? distance : Day - distance;
    }
};

}  // namespace

TEST_CASE_FIXTURE(SystemClockFixture, "a moment in UTC is set as a whole") {
    clock.SetSystemTime(Moment);
    CHECK(machine.ClockSettings() == std::vector<contract::ClockSetting>{{true, Moment}});
}

TEST_CASE_FIXTURE(SystemClockFixture, "the local date is set with the time of day that it is") {
    const LocalTime before = machine.Services().clock.Now();
    clock.SetLocalDate(Moment);
    CHECK_FALSE(machine.ClockSettings().front().system);
    CHECK(Told().year == 2026);
    CHECK(Told().month == 11);
    CHECK(Told().day == 21);
    CHECK(DialDistance(Told(), before) < 30);
}

TEST_CASE_FIXTURE(SystemClockFixture, "the local time is set with the date that it is") {
    const LocalTime before = machine.Services().clock.Now();
    clock.SetLocalTime(Moment);
    CHECK_FALSE(machine.ClockSettings().front().system);
    CHECK(DialDistance(Told(), Moment) == 0);
    const LocalTime after = machine.Services().clock.Now();
    const auto isDayOf = [told = Told()](const LocalTime& moment) {
        return told.year == moment.year && told.month == moment.month && told.day == moment.day;
    };
    CHECK((isDayOf(before) || isDayOf(after)));
}

TEST_CASE_FIXTURE(SystemClockFixture,
                  "a refused date or time is a failure, a refused moment in UTC is not") {
    machine.RefuseClock();
    CHECK(FailureOf([&] { clock.SetLocalDate(Moment); }) == 70);
    CHECK(FailureOf([&] { clock.SetLocalTime(Moment); }) == 70);
    CHECK(FailureOf([&] { clock.SetSystemTime(Moment); }) == 0);
}
