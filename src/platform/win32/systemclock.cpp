#include "platform/win32/systemclock.h"

#include "runtime/failure.h"

namespace platform::win32 {
namespace {

SYSTEMTIME Now() {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    return now;
}

void TakeDate(SYSTEMTIME& moment, const LocalTime& from) {
    moment.wYear = static_cast<WORD>(from.year);
    moment.wMonth = static_cast<WORD>(from.month);
    moment.wDay = static_cast<WORD>(from.day);
}

void TakeTime(SYSTEMTIME& moment, const LocalTime& from) {
    moment.wHour = static_cast<WORD>(from.hour);
    moment.wMinute = static_cast<WORD>(from.minute);
    moment.wSecond = static_cast<WORD>(from.second);
}

}  // namespace

void SystemClock::SetSystemTime(const LocalTime& utc) {
    SYSTEMTIME moment = {};
    TakeDate(moment, utc);
    TakeTime(moment, utc);
    setSystemTime_(&moment);
}

void SystemClock::SetLocalDate(const LocalTime& date) {
    SYSTEMTIME moment = Now();
    TakeDate(moment, date);
    SetOrThrow(moment);
}

void SystemClock::SetLocalTime(const LocalTime& time) {
    SYSTEMTIME moment = Now();
    TakeTime(moment, time);
    moment.wMilliseconds = 0;
    SetOrThrow(moment);
}

void SystemClock::SetOrThrow(const SYSTEMTIME& moment) const {
    if (!setLocalTime_(&moment)) throw runtime::Failure(runtime::PermissionDenied);
}

}  // namespace platform::win32
