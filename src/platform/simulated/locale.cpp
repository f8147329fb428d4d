#include "platform/simulated/locale.h"

#include <cstdint>
#include <cstdio>

namespace platform::simulated {
namespace {

// The characters of the bytes 0x80 to 0x9F; all others stand for themselves.
constexpr char32_t Specials[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t Malformed = 0xFFFFFFFF;

struct Decoded {
    char32_t character;
    std::size_t length;
};

Decoded DecodeFirst(std::string_view text) {
    auto byteAt = [&](std::size_t i) -> std::uint32_t {
        return static_cast<std::uint8_t>(text[i]);
    };
    std::uint32_t first = byteAt(0);
    if (first < 0x80) return {first, 1};
    std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return {Malformed, 1};
    char32_t character = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) return {Malformed, 1};
        character = character << 6 | (byteAt(i) & 0x3F);
    }
    bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    bool surrogate = character >= 0xD800 && character < 0xE000;
    if (overlong || surrogate || character > 0x10FFFF) return {Malformed, 1};
    return {character, length};
}

void AppendUtf8(std::string& text, char32_t character) {
    auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | character >> 6);
        append(0x80 | (character & 0x3F));
    } else {
        append(0xE0 | character >> 12);
        append(0x80 | (character >> 6 & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

std::string Formatted(const char* format, int first, int second, int third) {
    char buffer[48];
    int length = std::snprintf(buffer, sizeof buffer, format, first, second, third);
    return std::string(buffer, static_cast<std::size_t>(length));
}

}  // namespace

char WesternByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    for (int i = 0; i < 32; ++i) {
        if (Specials[i] == character) return static_cast<char>(0x80 + i);
    }
    return '?';
}

std::string ToWesternBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        auto [character, length] = DecodeFirst(text);
        bytes += WesternByte(character);
        if (character != Malformed && character > 0xFFFF) bytes += '?';
        text.remove_prefix(length);
    }
    return bytes;
}

std::string FromWesternBytes(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (char c : bytes) {
        char32_t byte = static_cast<std::uint8_t>(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? Specials[byte - 0x80] : byte);
    }
    return text;
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
    return FromWesternBytes(bytes);
}

}  // namespace platform::simulated
