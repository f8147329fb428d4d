#pragma once

#include <windows.h>

#include <doctest/doctest.h>

#include <vector>

namespace support {

// How many handles a process holds, from the system's own table: the call that counts them came
// with a service pack and answers 0 where the suites run.
inline int OpenHandlesOf(DWORD process) {
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
    for (ULONG i = 0; i < total; ++i) count += entries[i].process == process;
    REQUIRE(count > 0);
    return count;
}

inline int OpenHandles() {
    return OpenHandlesOf(GetCurrentProcessId());
}

}  // namespace support
