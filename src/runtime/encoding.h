#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8, which text is inside the program, and what files come in.
namespace runtime {

inline constexpr char32_t Malformed = 0xFFFFFFFF;

// Takes the first character of a text that is not empty; of bytes that are none, one. Half a pair
// of surrogates is a character like others.
char32_t TakeCharacter(std::string_view& text);

void AppendCharacter(std::string& text, char32_t character);

// UTF-16, the low byte first. Pairs of surrogates become one character, what is left of them stays
// as it is. An odd last byte is passed over.
std::string FromUtf16(std::string_view bytes);
// Throws Mistake for what is no UTF-8.
std::string ToUtf16(std::string_view text);

// How many characters of 16 bits the text has.
std::size_t Units(std::string_view text);

// Code page 1252. Its five unassigned bytes stand for the control characters of the same number, as
// on Windows, so that any bytes survive the way there and back.
std::string FromWestern(std::string_view bytes);
// A question mark for a character that the code page lacks.
char WesternByte(char32_t character);

}  // namespace runtime
