#include "timesync/date.h"

#include <chrono>
#include <initializer_list>
#include <limits>

#include "runtime/failure.h"

namespace timesync {
namespace {

namespace chrono = std::chrono;

constexpr int Day = 24 * 60 * 60;
constexpr chrono::sys_days ZeroDay = chrono::year(1899) / 12 / 30;

void RequireYear(int year) {
    if (year < 100 || year > 9999) throw runtime::Failure(runtime::InvalidProcedureCall);
}

}  // namespace

Date DateOf(const platform::LocalTime& parts) {
    using Short = std::numeric_limits<std::int16_t>;
    for (const int part :
         {parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second}) {
        if (part < Short::min() || part > Short::max()) throw runtime::Failure(runtime::Overflow);
    }
    RequireYear(parts.year);
    const auto month = chrono::year(parts.year) / chrono::January + chrono::months(parts.month - 1);
    const chrono::sys_days day = month / 1;
    const Date date = Date{(day - ZeroDay).count() + parts.day - 1} * Day +
                      Date{parts.hour} * 3600 + parts.minute * 60 + parts.second;
    RequireYear(PartsOf(date).year);
    return date;
}

platform::LocalTime PartsOf(Date date) {
    Date days = date / Day;
    int rest = static_cast<int>(date % Day);
    if (rest < 0) {
        rest += Day;
        --days;
    }
    const chrono::year_month_day day = ZeroDay + chrono::days(static_cast<int>(days));
    return {static_cast<int>(day.year()),
            static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day())),
            rest / 3600,
            rest / 60 % 60,
            rest % 60};
}

bool IsZero(Date date) {
    return date >= -Day / 2 && date <= Day / 2;
}

}  // namespace timesync
