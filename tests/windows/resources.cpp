#include "windows/resources.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>

#include <vector>

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
    struct Entry {
        ULONG process;
        UCHAR type;
        UCHAR flags;
        USHORT handle;
        void* object;
        ULONG access;
    };
    using Query = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
    constexpr ULONG SystemHandles = 16;
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQuerySystemInformation")));
    std::vector<char> buffer(4 * 1024 * 1024);
    REQUIRE(query(SystemHandles, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr) == 0);
    const ULONG total = *reinterpret_cast<const ULONG*>(buffer.data());
    const auto* entries = reinterpret_cast<const Entry*>(buffer.data() + sizeof(ULONG));
    int count = 0;
    for (ULONG i = 0; i < total; ++i) count += entries[i].process == GetCurrentProcessId();
    REQUIRE(count > 0);
    return count;
}

std::size_t PrivateMemory() {
    PROCESS_MEMORY_COUNTERS facts{};
    REQUIRE(GetProcessMemoryInfo(GetCurrentProcess(), &facts, sizeof facts));
    return facts.PagefileUsage;
}

}  // namespace windows
