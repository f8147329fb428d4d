#include "windows/resources.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>

#include "support/openhandles.h"

namespace windows {

int DrawingObjects() {
    struct Entry {
        unsigned long long object;
        unsigned owner;
        unsigned short unique;
        unsigned char type;
        unsigned char flags;
        unsigned long long user;
    };
    static_assert(sizeof(Entry) == 24);
    constexpr int Entries = 16384;
    constexpr std::size_t TableOffset = 0x94;
    const unsigned char* processBlock = nullptr;
    __asm__("movl %%fs:0x30,%0" : "=r"(processBlock));
    const auto* table = *reinterpret_cast<const Entry* const*>(processBlock + TableOffset);
    int count = 0;
    for (int i = 0; i < Entries; ++i) count += table[i].type != 0;
    return count;
}

int Handles() {
    return support::OpenHandles();
}

std::size_t PrivateMemory() {
    PROCESS_MEMORY_COUNTERS facts{};
    REQUIRE(GetProcessMemoryInfo(GetCurrentProcess(), &facts, sizeof facts));
    return facts.PagefileUsage;
}

}  // namespace windows
