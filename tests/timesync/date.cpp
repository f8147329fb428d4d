#include "timesync/date.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;
using timesync::Date;
using timesync::DateOf;
using timesync::IsZero;
using timesync::PartsOf;

TEST_CASE("a date counts the seconds since 1899-12-30") {
    CHECK(DateOf({1899, 12, 30, 0, 0, 0}) == 0);
    CHECK(DateOf({1899, 12, 31, 0, 0, 1}) == 86401);
    CHECK(DateOf({1899, 12, 29, 23, 59, 59}) == -1);
    CHECK(DateOf({1990, 1, 1, 0, 0, 0}) == 32874LL * 86400);
    CHECK(DateOf({2000, 2, 29, 12, 0, 0}) == 36585LL * 86400 + 43200);
}

TEST_CASE("what overflows in one part carries into the next") {
    struct Row {
        LocalTime given;
        LocalTime reached;
    };
    const Row rows[] = {
        {{2004, 3, 5, 23, 90, 0}, {2004, 3, 6, 0, 30, 0}},
        {{2004, 3, 5, 0, -30, 0}, {2004, 3, 4, 23, 30, 0}},
        {{2004, 3, 1, 0, -1, 0}, {2004, 2, 29, 23, 59, 0}},
        {{2003, 3, 1, 0, -1, 0}, {2003, 2, 28, 23, 59, 0}},
        {{2004, 12, 31, 23, 59, 60}, {2005, 1, 1, 0, 0, 0}},
        {{2005, 1, 1, 0, 0, -1}, {2004, 12, 31, 23, 59, 59}},
        {{2004, 13, 1, 0, 0, 0}, {2005, 1, 1, 0, 0, 0}},
        {{2004, 0, 1, 0, 0, 0}, {2003, 12, 1, 0, 0, 0}},
        {{2004, -11, 1, 0, 0, 0}, {2003, 1, 1, 0, 0, 0}},
        {{2004, 2, 30, 0, 0, 0}, {2004, 3, 1, 0, 0, 0}},
        {{2004, 3, 0, 0, 0, 0}, {2004, 2, 29, 0, 0, 0}},
        {{2004, 1, 1, 32767, 0, 0}, {2007, 9, 27, 7, 0, 0}},
        {{2004, 1, 1, 0, -32768, 0}, {2003, 12, 9, 5, 52, 0}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.given.minute);
        CAPTURE(row.given.month);
        CHECK(PartsOf(DateOf(row.given)) == row.reached);
    }
}

TEST_CASE("every day from 1900 to 2100 comes back as it was, with all its seconds apart") {
    LocalTime day{1900, 1, 1, 23, 59, 58};
    Date expected = 2LL * 86400 + 86398;
    for (; day.year < 2100; expected += 86400) {
        const Date date = DateOf(day);
        if (date != expected || PartsOf(date) != day) FAIL("at day ", date / 86400);
        const LocalTime next = PartsOf(date + 86400);
        const bool follows = next.day == day.day + 1 || next.day == 1;
        if (!follows) FAIL("after day ", date / 86400);
        day = next;
    }
    CHECK(expected / 86400 == 73051);
}

TEST_CASE("a part of more than 16 bits is an overflow") {
    CHECK(FailureOf([] { DateOf({32768, 1, 1}); }) == 6);
    CHECK(FailureOf([] { DateOf({2004, -32769, 1}); }) == 6);
    CHECK(FailureOf([] { DateOf({2004, 1, 32768}); }) == 6);
    CHECK(FailureOf([] { DateOf({2004, 1, 1, 32768}); }) == 6);
    CHECK(FailureOf([] { DateOf({2004, 1, 1, 0, -32769}); }) == 6);
    CHECK(FailureOf([] { DateOf({2004, 1, 1, 0, 0, 32768}); }) == 6);
}

TEST_CASE("a year that no date has is an invalid argument, given or reached") {
    for (int year : {-32768, -1, 0, 99, 10000, 32767}) {
        CAPTURE(year);
        CHECK(FailureOf([&] { DateOf({year, 1, 1}); }) == 5);
    }
    CHECK(FailureOf([] { DateOf({100, 1, 0}); }) == 5);
    CHECK(FailureOf([] { DateOf({9999, 12, 32}); }) == 5);
    CHECK(FailureOf([] { DateOf({9999, 32767, 32767, 32767, 32767, 32767}); }) == 5);
    CHECK(FailureOf([] { DateOf({100, -32768, -32768, -32768, -32768, -32768}); }) == 5);
    CHECK(PartsOf(DateOf({100, 1, 1})) == LocalTime{100, 1, 1, 0, 0, 0});
    CHECK(PartsOf(DateOf({9999, 12, 31, 23, 59, 59})) == LocalTime{9999, 12, 31, 23, 59, 59});
}

TEST_CASE(
    "what rounds to the day 0 is the zero date, and half a day rounds to it from both sides") {
    for (Date date : {-43200, -1, 0, 1, 43199, 43200}) CHECK(IsZero(date));
    for (Date date : {-86400, -43201, 43201, 86400}) CHECK_FALSE(IsZero(date));
}
