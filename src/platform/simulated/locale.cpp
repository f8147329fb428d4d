#include "platform/simulated/locale.h"

#include <cstdio>

#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

std::string Formatted(const char* format, int first, int second, int third) {
    char buffer[48];
    int length = std::snprintf(buffer, sizeof buffer, format, first, second, third);
    return std::string(buffer, static_cast<std::size_t>(length));
}

}  // namespace

std::string ToWesternBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const std::string_view rest = text;
        char32_t character = runtime::TakeCharacter(text);
        if (character >= 0xD800 && character < 0xE000) {
            character = runtime::Malformed;
            text = rest.substr(1);
        }
        bytes += runtime::WesternByte(character);
        if (character != runtime::Malformed && character > 0xFFFF) bytes += '?';
    }
    return bytes;
}

std::string Locale::ShortDate(const LocalTime& time) const {
    return Formatted("%02d.%02d.%04d", time.day, time.month, time.year);
}

std::string Locale::LongTime(const LocalTime& time) const {
    return Formatted("%02d:%02d:%02d", time.hour, time.minute, time.second);
}

std::string Locale::ShortTime(const LocalTime& time) const {
    return LongTime(time).substr(0, 5);
}

std::string Locale::GermanDate(const LocalTime& time) const {
    static constexpr const char* Months[] = {"Januar",    "Februar", "März",     "April",
                                             "Mai",       "Juni",    "Juli",     "August",
                                             "September", "Oktober", "November", "Dezember"};
    static constexpr const char* Days[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                           "Donnerstag", "Freitag", "Samstag"};
    // Days from the first of March of a year on: the months' lengths then repeat every five.
    const int year = time.month < 3 ? time.year - 1 : time.year;
    const int month = (time.month + 9) % 12;
    const int days =
        year * 365 + year / 4 - year / 100 + year / 400 + (153 * month + 2) / 5 + time.day;
    char day[16];
    std::snprintf(day, sizeof day, "%02d. ", time.day);
    return std::string(Days[(days + 2) % 7]) + ", " + day + Months[time.month - 1] + ' ' +
           std::to_string(time.year);
}

std::string Locale::ToAnsi(std::string_view text) const {
    return ToWesternBytes(text);
}

std::string Locale::FromAnsi(std::string_view bytes) const {
    return runtime::FromWestern(bytes);
}

}  // namespace platform::simulated
