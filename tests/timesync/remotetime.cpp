#include "timesync/remotetime.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;
using platform::TimeOfDay;
using timesync::DateOf;
using timesync::GetRemoteDateTime;
using timesync::PartsOf;
using timesync::SetSystemDateTime;

namespace {

struct Asked {
    platform::simulated::Machine machine;
    const Lines& lines = machine.journal.Lines();

    timesync::Date Ask(const char* name) { return GetRemoteDateTime(machine.network, name); }
    LocalTime Told(TimeOfDay told) {
        machine.network.ownTime = told;
        return PartsOf(Ask(""));
    }
};

TimeOfDay At(const LocalTime& utc, std::int32_t timezone) {
    const auto part = [](int number) { return static_cast<std::uint32_t>(number); };
    return {part(utc.hour), part(utc.minute), part(utc.second), timezone,
            part(utc.day),  part(utc.month),  part(utc.year)};
}

}  // namespace

TEST_CASE_FIXTURE(Asked, "a name means the same with and without its two backslashes") {
    machine.network.SetTimeOf("\\\\zeit", {});
    machine.faults.FailAll("NetRemoteTOD", 5);
    for (const char* name : {"zeit", "\\\\zeit", "  zeit ", " \\\\zeit  "}) {
        machine.journal.Clear();
        Ask(name);
        CHECK(lines == Lines{"NetRemoteTOD \"\\\\zeit\" -> 5"});
    }
}

TEST_CASE_FIXTURE(Asked, "one backslash is none of two") {
    machine.faults.FailAll("NetRemoteTOD", 5);
    Ask("\\zeit");
    Ask("zeit\\\\");
    Ask("\\\\");
    Ask("Büro Süd");
    CHECK(lines == Lines{"NetRemoteTOD \"\\\\\\zeit\" -> 5", "NetRemoteTOD \"\\\\zeit\\\\\" -> 5",
                         "NetRemoteTOD \"\\\\\" -> 5", "NetRemoteTOD \"\\\\Büro Süd\" -> 5"});
}

TEST_CASE_FIXTURE(Asked,
                  "without a name this computer is asked, and the answer's memory given back") {
    for (const char* name : {"", "   "}) {
        machine.journal.Clear();
        CHECK(PartsOf(Ask(name)) == LocalTime{2004, 3, 5, 14, 7, 9});
        CHECK(lines == Lines{"NetRemoteTOD \"\" -> 0", "NetApiBufferFree"});
    }
}

TEST_CASE_FIXTURE(Asked, "a computer that does not answer gives the zero date") {
    CHECK(Ask("niemand") == 0);
    CHECK(lines == Lines{"NetRemoteTOD \"\\\\niemand\" -> 53"});
}

TEST_CASE_FIXTURE(Asked, "the time zone is taken from the minutes and carries as far as it must") {
    struct Row {
        LocalTime utc;
        std::int32_t timezone;
        LocalTime local;
    };
    const Row rows[] = {
        {{2004, 3, 5, 13, 7, 9}, 0, {2004, 3, 5, 13, 7, 9}},
        {{2004, 3, 5, 13, 7, 9}, -60, {2004, 3, 5, 14, 7, 9}},
        {{2004, 3, 5, 13, 7, 9}, 300, {2004, 3, 5, 8, 7, 9}},
        {{2004, 3, 5, 13, 7, 9}, -330, {2004, 3, 5, 18, 37, 9}},
        {{2004, 3, 5, 13, 7, 9}, 210, {2004, 3, 5, 9, 37, 9}},
        {{2004, 3, 5, 13, 7, 9}, -345, {2004, 3, 5, 18, 52, 9}},
        {{2004, 3, 5, 13, 7, 9}, 5, {2004, 3, 5, 13, 2, 9}},
        {{2004, 3, 5, 23, 30, 0}, -60, {2004, 3, 6, 0, 30, 0}},
        {{2004, 3, 5, 23, 0, 0}, -60, {2004, 3, 6, 0, 0, 0}},
        {{2004, 3, 5, 4, 59, 59}, 300, {2004, 3, 4, 23, 59, 59}},
        {{2004, 2, 28, 23, 30, 0}, -60, {2004, 2, 29, 0, 30, 0}},
        {{2004, 3, 1, 0, 0, 0}, 1, {2004, 2, 29, 23, 59, 0}},
        {{2003, 3, 1, 0, 0, 0}, 480, {2003, 2, 28, 16, 0, 0}},
        {{2004, 12, 31, 23, 30, 0}, -60, {2005, 1, 1, 0, 30, 0}},
        {{2004, 12, 31, 11, 0, 0}, -780, {2005, 1, 1, 0, 0, 0}},
        {{2005, 1, 1, 11, 59, 59}, 720, {2004, 12, 31, 23, 59, 59}},
        {{1999, 12, 31, 23, 59, 59}, -1, {2000, 1, 1, 0, 0, 59}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.timezone);
        CAPTURE(row.utc.day);
        CHECK(Told(At(row.utc, row.timezone)) == row.local);
    }
}

TEST_CASE_FIXTURE(Asked, "an answer that is no date is a failure") {
    CHECK(FailureOf([&] { Told(At({2004, 3, 5, 0, 0, 0}, 40000)); }) == 6);
    CHECK(FailureOf([&] { Told(At({2004, 3, 5, 0, 0, 0}, INT32_MIN)); }) == 6);
    CHECK(FailureOf([&] { Told({.hours = 70000, .day = 1, .month = 1, .year = 2004}); }) == 6);
    CHECK(FailureOf([&] { Told({}); }) == 5);
    CHECK(FailureOf([&] { Told({.day = 1, .month = 1, .year = 4294967295u}); }) == 5);
}

TEST_CASE_FIXTURE(Asked, "the local date is set before the local time") {
    timesync::SetLocalClock(machine.systemClock, DateOf({2026, 11, 21, 16, 5, 9}));
    CHECK(lines == Lines{"SetLocalDate 2026-11-21", "SetLocalTime 16:05:09"});
}

TEST_CASE_FIXTURE(Asked, "when the date is refused the time is not set") {
    machine.faults.FailAll("SetLocalDate", 70);
    CHECK(FailureOf([&] { timesync::SetLocalClock(machine.systemClock, 86400); }) == 70);
    CHECK(lines == Lines{"SetLocalDate 1899-12-31 -> failure 70"});
}

TEST_CASE_FIXTURE(Asked,
                  "the network's own time server sets the clock, and silent it sets nothing") {
    SetSystemDateTime(machine.network, machine.systemClock);
    CHECK(lines == Lines{"NetRemoteTOD \"\\\\TIMESERVER\" -> 53"});
    machine.journal.Clear();
    machine.network.SetTimeOf("\\\\TIMESERVER", At({2026, 11, 21, 15, 5, 9}, -60));
    SetSystemDateTime(machine.network, machine.systemClock);
    CHECK(lines == Lines{"NetRemoteTOD \"\\\\TIMESERVER\" -> 0", "NetApiBufferFree",
                         "SetLocalDate 2026-11-21", "SetLocalTime 16:05:09"});
    machine.faults.FailAll("SetLocalTime", 70);
    CHECK(FailureOf([&] { SetSystemDateTime(machine.network, machine.systemClock); }) == 70);
}
