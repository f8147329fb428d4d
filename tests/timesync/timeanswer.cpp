#include "timesync/timeanswer.h"

#include <doctest/doctest.h>

#include <random>

#include "timesync/date.h"
#include "timesync/frame.h"

using namespace timesync_test;
using timesync::ApplyTimeAnswer;
using timesync::SecondsOfAnswer;

namespace {

struct Answered {
    platform::simulated::Machine machine;

    Lines Apply(const std::string& answer) {
        machine.journal.Clear();
        ApplyTimeAnswer(answer, machine.systemClock);
        return machine.journal.Lines();
    }
};

std::string Bytes(std::uint32_t count) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(count >> shift & 0xFF);
    return bytes;
}

}  // namespace

TEST_CASE_FIXTURE(Answered, "four bytes count the seconds since 1900 in UTC, the greatest first") {
    CHECK(Apply(Bytes(2840140800u)) == Lines{"SetSystemTime 1990-01-01 00:00:00"});
    CHECK(Apply("\xC3\xF2\xF9\xFD") == Lines{"SetSystemTime 2004-03-05 13:07:09"});
    CHECK(Apply(Bytes(2840140801u)) == Lines{"SetSystemTime 1990-01-01 00:00:01"});
    CHECK(Apply(Bytes(2840140799u)) == Lines{"SetSystemTime 1989-12-31 23:59:59"});
    CHECK(Apply("\xFF\xFF\xFF\xFF") == Lines{"SetSystemTime 2036-02-07 06:28:15"});
    CHECK(Apply(Bytes(3155673599u)) == Lines{"SetSystemTime 1999-12-31 23:59:59"});
    CHECK(Apply(Bytes(3160857599u)) == Lines{"SetSystemTime 2000-02-29 23:59:59"});
}

TEST_CASE_FIXTURE(Answered, "an answer of any other length does nothing") {
    const std::string eight = "\xC3\xF2\xF9\xFD\xC3\xF2\xF9\xFD";
    for (std::size_t length : {0u, 1u, 2u, 3u, 5u, 6u, 7u, 8u}) {
        CAPTURE(length);
        CHECK(Apply(eight.substr(0, length)).empty());
    }
    CHECK(Apply(std::string(100000, '\xC3')).empty());
}

TEST_CASE_FIXTURE(Answered, "a blank at an end of four bytes makes them too short") {
    CHECK(Apply("\xC3\xF2\xF9 ").empty());
    CHECK(Apply(" \xF2\xF9\xFD").empty());
    CHECK(Apply("    ").empty());
    CHECK(Apply("\xC3 \x20\xFD") == Lines{"SetSystemTime 2003-09-27 14:45:17"});
}

TEST_CASE_FIXTURE(Answered, "blanks around four bytes do not count") {
    CHECK(Apply("\xC3\xF2\xF9\xFD ") == Lines{"SetSystemTime 2004-03-05 13:07:09"});
    CHECK(Apply("  \xC3\xF2\xF9\xFD  ") == Lines{"SetSystemTime 2004-03-05 13:07:09"});
    for (const char* other :
         {"\xC3\xF2\xF9\xFD\t", "\xC3\xF2\xF9\xFD\r\n", "\xA0\xC3\xF2\xF9\xFD"}) {
        CHECK(Apply(other).empty());
    }
}

TEST_CASE_FIXTURE(Answered, "bytes that are no text by themselves are taken as they are") {
    CHECK(Apply(std::string("\xC3\0\0\0", 4)) == Lines{"SetSystemTime 2003-09-03 05:52:00"});
    CHECK(Apply("\xC3\x81\x8D\x8F") == Lines{"SetSystemTime 2003-12-10 12:18:23"});
}

TEST_CASE_FIXTURE(Answered, "a count that 32 bits from 1990 do not hold is an overflow") {
    CHECK(Apply(Bytes(692657152u)) == Lines{"SetSystemTime 1921-12-13 20:45:52"});
    for (std::uint32_t count : {692657151u, 1u, 0u}) {
        CAPTURE(count);
        CHECK(FailureOf([&] { Apply(Bytes(count)); }) == 6);
        CHECK(machine.journal.Lines().empty());
    }
}

TEST_CASE_FIXTURE(Answered, "a clock that cannot be set is nobody's concern") {
    machine.faults.FailAll("SetSystemTime", 5);
    const LocalTime before = machine.clock.now;
    CHECK(Apply("\xC3\xF2\xF9\xFD") == Lines{"SetSystemTime 2004-03-05 13:07:09 -> refused"});
    CHECK(machine.clock.now == before);
}

TEST_CASE("any count in reach comes out as the seconds since 1990") {
    std::mt19937 random(37);
    int taken = 0;
    for (int sample = 0; sample < 20000; ++sample) {
        const std::uint32_t count = random();
        const std::string bytes = Bytes(count);
        const bool blank = bytes.front() == ' ' || bytes.back() == ' ';
        if (count < 692657152u && !blank) {
            if (FailureOf([&] { SecondsOfAnswer(bytes); }) != 6) FAIL("at ", count);
        } else {
            const auto seconds = SecondsOfAnswer(bytes);
            const bool right = blank ? !seconds : seconds && *seconds + 2840140800LL == count;
            if (!right) FAIL("at ", count);
            taken += !blank;
        }
    }
    CHECK(taken > 10000);
}
