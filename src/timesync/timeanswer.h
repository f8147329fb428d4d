#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {
class SystemClock;
}

namespace timesync {

// The seconds since 1990-01-01 00:00:00 UTC in an answer of the Time Protocol, which counts them
// from 1900 on. Nothing unless the answer has four bytes, not counting those that are blanks at its
// ends: so an answer in time whose first or last byte happens to be a blank is dropped.
// Throws Failure Overflow for a moment so long before 1990 that 32 bits do not hold it.
std::optional<std::int32_t> SecondsOfAnswer(std::string_view answer);

// Sets the clock to so many seconds after 1990-01-01 00:00:00 UTC. The day of the week stays 0.
void SetClockFrom1990(platform::SystemClock& clock, std::int64_t seconds);

// Sets the clock by an answer, without a word when it is not of the right length. What the answer
// took to travel is not made up for. Throws what SecondsOfAnswer throws.
void ApplyTimeAnswer(std::string_view answer, platform::SystemClock& clock);

}  // namespace timesync
