#include "runtime/text.h"

#include <algorithm>

namespace runtime {
namespace {

unsigned ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

// How many bytes a character has by its first byte and, where the first one leaves room for forms
// that UTF-8 forbids (too long, surrogates, beyond U+10FFFF), by its second. 1 for a stray byte.
std::size_t PromisedLength(unsigned first, unsigned second) {
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) {
        if (first == 0xE0 && second < 0xA0) return 1;
        if (first == 0xED && second > 0x9F) return 1;
        return 3;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        if (first == 0xF0 && second < 0x90) return 1;
        if (first == 0xF4 && second > 0x8F) return 1;
        return 4;
    }
    return 1;
}

// The position behind the character that begins at `position`.
std::size_t Next(std::string_view text, std::size_t position) {
    if (ByteAt(text, position) < 0x80 || position + 1 == text.size()) return position + 1;
    std::size_t length = PromisedLength(ByteAt(text, position), ByteAt(text, position + 1));
    if (position + length > text.size()) return position + 1;
    for (std::size_t i = 1; i < length; ++i) {
        if ((ByteAt(text, position + i) & 0xC0) != 0x80) return position + 1;
    }
    return position + length;
}

// The position behind `count` characters from `position` on, the end of the text at most.
std::size_t Skip(std::string_view text, std::size_t position, std::size_t count) {
    while (count > 0 && position < text.size()) {
        position = Next(text, position);
        --count;
    }
    return position;
}

bool IsAsciiUpper(char letter) {
    return letter >= 'A' && letter <= 'Z';
}
bool IsAsciiLower(char letter) {
    return letter >= 'a' && letter <= 'z';
}
char AsciiLower(char letter) {
    return IsAsciiUpper(letter) ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

// The letters of Latin-1 lie behind the lead byte C3, a capital 20 (hexadecimal) below its small
// letter. The signs for times (97) and divided by (B7) and the sharp s (9F) have no partner, and
// that of the y with diaeresis (BF) lies outside of Latin-1.
constexpr unsigned Latin1Lead = 0xC3;
bool IsLatin1Upper(unsigned second) {
    return second >= 0x80 && second <= 0x9E && second != 0x97;
}
bool IsLatin1Lower(unsigned second) {
    return second >= 0xA0 && second <= 0xBE && second != 0xB7;
}

// Changes the case of each letter that one of the two tests picks.
template <typename AsciiTest, typename Latin1Test>
std::string SwitchCase(std::string_view text, AsciiTest ascii, Latin1Test latin1) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        bool letter = ascii(result[i]) ||
                      (i > 0 && ByteAt(text, i - 1) == Latin1Lead && latin1(ByteAt(text, i)));
        if (letter) result[i] = static_cast<char>(result[i] ^ 0x20);
    }
    return result;
}

}  // namespace

std::size_t Length(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) {
        position = Next(text, position);
    }
    return count;
}

std::string Left(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, Skip(text, 0, count)));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t count) {
    std::size_t first = Skip(text, 0, start);
    return std::string(text.substr(first, Skip(text, first, count) - first));
}

std::string ToLower(std::string_view text) {
    return SwitchCase(text, IsAsciiUpper, IsLatin1Upper);
}

std::string ToUpper(std::string_view text) {
    return SwitchCase(text, IsAsciiLower, IsLatin1Lower);
}

std::string Trim(std::string_view text) {
    std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') + 1 - first));
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return AsciiLower(a) == AsciiLower(b); });
}

}  // namespace runtime
