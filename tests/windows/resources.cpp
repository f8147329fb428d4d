#include "windows/resources.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>

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

std::size_t PrivateMemory() {
    PROCESS_MEMORY_COUNTERS facts{};
    REQUIRE(GetProcessMemoryInfo(GetCurrentProcess(), &facts, sizeof facts));
    return facts.PagefileUsage;
}

}  // namespace windows
