#pragma once

#include <cstdint>

#include "platform/clock.h"

// Dates as a running count. That of 0 is the zero date, which no clock shows and which stands for
// none.
namespace timesync {

// Seconds since 1899-12-30 00:00:00.
using Date = std::int64_t;

// The parts need not lie in their usual ranges: minutes below 0 go back into the hour before, a
// 25th hour into the next day.
// Throws Failure Overflow for a part of more than 16 bits, and InvalidProcedureCall when the year
// given or the one reached lies outside 100 to 9999.
Date DateOf(const platform::LocalTime& parts);

// The date must come from DateOf, or lie within a lifetime of one.
platform::LocalTime PartsOf(Date date);

// Whether the date in days, rounded to a whole number, is 0: noon itself rounds to the even one.
bool IsZero(Date date);

}  // namespace timesync
