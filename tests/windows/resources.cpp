#include "windows/resources.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>

#include <iterator>

#include "support/drawingobjects.h"
#include "support/openhandles.h"

namespace windows {

int DrawingObjects() {
    const unsigned char* processBlock = nullptr;
    __asm__("movl %%fs:0x30,%0" : "=r"(processBlock));
    return support::UsedDrawingEntries(*reinterpret_cast<const support::DrawingEntry* const*>(
        processBlock + support::DrawingTableOffset));
}

int Handles() {
    return support::OpenHandles();
}

int MemoryBlocks() {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps);
    REQUIRE(count <= std::size(heaps));
    int blocks = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry)) blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
        HeapUnlock(heaps[i]);
    }
    return blocks;
}

std::size_t PrivateMemory() {
    PROCESS_MEMORY_COUNTERS facts{};
    REQUIRE(GetProcessMemoryInfo(GetCurrentProcess(), &facts, sizeof facts));
    return facts.PagefileUsage;
}

}  // namespace windows
