#include "cleanup/texts.h"

#include "platform/locale.h"

namespace cleanup {

std::string TrimAtNul(std::string text) {
    const std::size_t end = text.find('\0');
    if (end != std::string::npos) text.resize(end);
    return text;
}

std::string DateText(const platform::Locale& locale, const platform::LocalTime& time) {
    const platform::LocalTime none;
    const bool isMidnight = time.hour == 0 && time.minute == 0 && time.second == 0;
    const bool hasDate = time.year != none.year || time.month != none.month || time.day != none.day;
    if (!hasDate) return locale.LongTime(time);
    const std::string date = locale.ShortDate(time);
    return isMidnight ? date : date + ' ' + locale.LongTime(time);
}

}  // namespace cleanup
