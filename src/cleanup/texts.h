#pragma once

#include <string>

#include "platform/clock.h"

namespace platform {
class Locale;
}

namespace cleanup {

// The text before its first NUL.
std::string TrimAtNul(std::string text);

// A moment as the platform turns it into text: short date, blank, long time. Midnight has no time,
// and the day that stands for no date, 30.12.1899, has no date.
std::string DateText(const platform::Locale& locale, const platform::LocalTime& time);

}  // namespace cleanup
