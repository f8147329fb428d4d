#include "platform/simulated/systemclock.h"

#include <cstdio>

#include "platform/simulated/clock.h"
#include "platform/simulated/faults.h"
#include "runtime/failure.h"

namespace platform::simulated {
namespace {

constexpr int SecondsEast = 3600;

std::string Numbers(const char* format, int first, int second, int third) {
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, format, first, second, third);
    return buffer;
}

std::string DateText(const LocalTime& time) {
    return Numbers("%04d-%02d-%02d", time.year, time.month, time.day);
}

std::string TimeText(const LocalTime& time) {
    return Numbers("%02d:%02d:%02d", time.hour, time.minute, time.second);
}

}  // namespace

void SystemClock::SetSystemTime(const LocalTime& utc) {
    auto line =
        journal_.Note([&] { return "SetSystemTime " + DateText(utc) + ' ' + TimeText(utc); });
    if (faults_.Check("SetSystemTime", "")) {
        journal_.Finish(line, [] { return std::string("refused"); });
        return;
    }
    clock_.now = utc;
    clock_.AddSeconds(SecondsEast);
}

void SystemClock::SetLocalDate(const LocalTime& date) {
    auto line = journal_.Note([&] { return "SetLocalDate " + DateText(date); });
    if (faults_.Check("SetLocalDate", "")) ThrowFault(journal_, line, runtime::PermissionDenied);
    clock_.now.year = date.year;
    clock_.now.month = date.month;
    clock_.now.day = date.day;
}

void SystemClock::SetLocalTime(const LocalTime& time) {
    auto line = journal_.Note([&] { return "SetLocalTime " + TimeText(time); });
    if (faults_.Check("SetLocalTime", "")) ThrowFault(journal_, line, runtime::PermissionDenied);
    clock_.now.hour = time.hour;
    clock_.now.minute = time.minute;
    clock_.now.second = time.second;
}

}  // namespace platform::simulated
