#pragma once

#include <array>
#include <cstdint>
#include <span>

// Numbers as they are stored, the least byte first.
namespace registry {

// Of four bytes at most.
inline std::uint32_t FromLittleEndian(std::span<const std::uint8_t> bytes) {
    std::uint32_t number = 0;
    for (std::size_t at = bytes.size(); at-- > 0;) number = number << 8 | bytes[at];
    return number;
}

inline std::array<std::uint8_t, 4> ToLittleEndian(std::uint32_t number) {
    std::array<std::uint8_t, 4> bytes;
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(number);
        number >>= 8;
    }
    return bytes;
}

}  // namespace registry
