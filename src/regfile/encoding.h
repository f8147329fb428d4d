#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace regfile {

inline constexpr char32_t Malformed = 0xFFFFFFFF;

// Takes the first character of a text in UTF-8 that is not empty; of bytes that are none, one.
char32_t TakeCharacter(std::string_view& text);

// Pairs of surrogates become one character, what is left of them stays as it is. An odd last byte
// is passed over.
std::string FromUtf16(std::string_view bytes);
// Throws runtime::Mistake for what is no UTF-8.
std::string ToUtf16(std::string_view text);

std::string FromWestern(std::string_view bytes);

// How many characters of 16 bits the text has.
std::size_t Units(std::string_view text);

}  // namespace regfile
