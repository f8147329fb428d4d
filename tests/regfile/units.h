#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "regfile/registrationfile.h"

namespace regfile_test {

using namespace regfile;

inline constexpr char Machine[] = "HKEY_LOCAL_MACHINE";

inline std::u16string UnitsOf(std::string_view file) {
    std::u16string units;
    for (std::size_t i = 0; i + 1 < file.size(); i += 2) {
        units += static_cast<char16_t>(static_cast<unsigned char>(file[i]) |
                                       static_cast<unsigned char>(file[i + 1]) << 8);
    }
    return units;
}

inline std::string FileOf(std::u16string_view units) {
    std::string bytes;
    for (const char16_t unit : units) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

// The bytes of a text as Windows stores it.
inline std::vector<std::uint8_t> Terminated(std::u16string_view text) {
    const std::string bytes = FileOf(std::u16string(text) + u'\0');
    return {bytes.begin(), bytes.end()};
}

}  // namespace regfile_test
