#pragma once

#include <cstddef>

namespace support {

// An entry of a process's own table of drawing objects, which its process block names at that
// offset.
struct DrawingEntry {
    unsigned long long object;
    unsigned owner;
    unsigned short unique;
    unsigned char type;
    unsigned char flags;
    unsigned long long user;
};
static_assert(sizeof(DrawingEntry) == 24);
inline constexpr std::size_t DrawingEntries = 16384;
inline constexpr std::size_t DrawingTableOffset = 0x94;

// How many of the table's entries, DrawingEntries of them, hold an object.
inline int UsedDrawingEntries(const DrawingEntry* table) {
    int count = 0;
    for (std::size_t i = 0; i < DrawingEntries; ++i) count += table[i].type != 0;
    return count;
}

}  // namespace support
