#include "platform/win32/systemclock.h"

#include <doctest/doctest.h>

// What reaches the system, record by record; no clock is set.

namespace {

using platform::win32::SystemClock;

SYSTEMTIME local = {};
SYSTEMTIME utc = {};
bool allowed = true;

BOOL WINAPI KeepLocal(const SYSTEMTIME* moment) {
    local = *moment;
    return allowed;
}

BOOL WINAPI KeepSystem(const SYSTEMTIME* moment) {
    utc = *moment;
    return allowed;
}

}  // namespace

TEST_CASE("a moment in UTC has neither a day of the week nor milliseconds") {
    SystemClock(KeepLocal, KeepSystem).SetSystemTime({2026, 11, 21, 16, 5, 9});
    CHECK(utc.wYear == 2026);
    CHECK(utc.wMonth == 11);
    CHECK(utc.wDay == 21);
    CHECK(utc.wHour == 16);
    CHECK(utc.wMinute == 5);
    CHECK(utc.wSecond == 9);
    CHECK(utc.wDayOfWeek == 0);
    CHECK(utc.wMilliseconds == 0);
    CHECK(local.wYear == 0);
}

TEST_CASE("a time of day begins with its second") {
    local.wMilliseconds = 77;
    SystemClock(KeepLocal, KeepSystem).SetLocalTime({2026, 11, 21, 16, 5, 9});
    CHECK(local.wSecond == 9);
    CHECK(local.wMilliseconds == 0);
}
