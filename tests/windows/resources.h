#pragma once

#include <cstddef>

namespace windows {

// What the process holds of the system's. The calls that count handles and drawing objects answer
// 0 where the suite runs, so both come from the system's own tables.

// Pens, brushes, fonts, bitmaps, regions and device contexts.
int DrawingObjects();
// Files, events and what else has a handle.
int Handles();
// Blocks of memory in use: what `new` gives, and what the system takes for itself in this process.
int MemoryBlocks();
// Bytes that are the process's own.
std::size_t PrivateMemory();

}  // namespace windows
