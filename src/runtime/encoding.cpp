#include "runtime/encoding.h"

#include <algorithm>
#include <iterator>

#include "runtime/mistake.h"

namespace runtime {
namespace {

// The characters of the bytes 0x80 to 0x9F; the unassigned ones stand for the control characters of
// the same number, as Windows has it.
constexpr char16_t WesternSpecials[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AppendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

}  // namespace

void AppendCharacter(std::string& text, char32_t character) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            append(0xE0 | character >> 12);
        } else {
            append(0xF0 | character >> 18);
            append(0x80 | (character >> 12 & 0x3F));
        }
        append(0x80 | (character >> 6 & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

char32_t TakeCharacter(std::string_view& text) {
    const auto byteAt = [&](std::size_t i) -> char32_t {
        return static_cast<unsigned char>(text[i]);
    };
    const char32_t first = byteAt(0);
    std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    char32_t character = length == 1 ? first : first & (0x7Fu >> length);
    bool right = first < 0x80 || (first >= 0xC2 && first <= 0xF4 && length <= text.size());
    for (std::size_t i = 1; right && i < length; ++i) {
        right = (byteAt(i) & 0xC0) == 0x80;
        character = character << 6 | (byteAt(i) & 0x3F);
    }
    const bool tooLong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    if (!right || tooLong || character > 0x10FFFF) {
        text.remove_prefix(1);
        return Malformed;
    }
    text.remove_prefix(length);
    return character;
}

std::string FromUtf16(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() / 2);
    const auto unitAt = [&](std::size_t i) -> char32_t {
        if (i + 1 >= bytes.size()) return 0;
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[i]) |
                                     static_cast<unsigned char>(bytes[i + 1]) << 8);
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t character = unitAt(i);
        const char32_t second = unitAt(i + 2);
        if (character >> 10 == 0xD800 >> 10 && second >> 10 == 0xDC00 >> 10) {
            character = 0x10000 + ((character & 0x3FF) << 10 | (second & 0x3FF));
            i += 2;
        }
        AppendCharacter(text, character);
    }
    return text;
}

std::string ToUtf16(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    while (!text.empty()) {
        const char32_t character = TakeCharacter(text);
        if (character == Malformed) throw Mistake("bytes that are no UTF-8");
        if (character < 0x10000) {
            AppendUnit(bytes, character);
        } else {
            AppendUnit(bytes, 0xD800 | (character - 0x10000) >> 10);
            AppendUnit(bytes, 0xDC00 | (character & 0x3FF));
        }
    }
    return bytes;
}

std::string FromWestern(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const char32_t byte = static_cast<unsigned char>(c);
        AppendCharacter(text, byte >= 0x80 && byte < 0xA0 ? WesternSpecials[byte - 0x80] : byte);
    }
    return text;
}

char WesternByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* found =
        std::find(std::begin(WesternSpecials), std::end(WesternSpecials), character);
    if (found == std::end(WesternSpecials)) return '?';
    return static_cast<char>(0x80 + (found - WesternSpecials));
}

std::size_t Units(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        const char32_t character = TakeCharacter(text);
        count += character >= 0x10000 && character != Malformed ? 2 : 1;
    }
    return count;
}

}  // namespace runtime
