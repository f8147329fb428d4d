#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text is UTF-8 inside the program. These functions count characters (code points), not bytes.
// Malformed bytes count as one character each and are kept as they are.
namespace runtime {

std::size_t Length(std::string_view text);

// The first `count` characters; the whole text when it has fewer.
std::string Left(std::string_view text, std::size_t count);

// From the character at `start` (0 is the first) to the end, or `count` characters of it.
std::string Mid(std::string_view text, std::size_t start,
                std::size_t count = static_cast<std::size_t>(-1));

// Case folding of the letters of the western code page (A to Z, the accented letters of Latin-1).
std::string ToLower(std::string_view text);
std::string ToUpper(std::string_view text);

// Without the blanks (only blanks, no tabs) on both ends.
std::string Trim(std::string_view text);

// Whether two texts are equal when ASCII letters' case plays no part, as registry names are.
bool EqualsIgnoringCase(std::string_view left, std::string_view right);

}  // namespace runtime
