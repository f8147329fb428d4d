#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// How the journal writes things down: on one line, the same in every run, for reading and not for
// parsing.
namespace platform::simulated {

// In quotes; NUL, CR, LF and TAB as \0 \r \n \t, other control characters as \xNN. A backslash
// stays single, since most of what is written here are paths.
std::string Quoted(std::string_view text);

// 0x3F: at least two digits.
std::string Hex(std::uint32_t number);

// The data of a registry value: a number for four bytes of type 4, a quoted text for the text
// types, otherwise the first 32 bytes in hexadecimal.
std::string DataText(std::uint32_t type, const std::uint8_t* data, std::uint32_t size);

}  // namespace platform::simulated
