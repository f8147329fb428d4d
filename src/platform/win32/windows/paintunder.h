#pragma once

#include <windows.h>

namespace platform::win32 {

// What the system does with WM_PAINT; then the frames on the window are painted once more, where it
// has painted. They show through what it paints, so it paints over their lines. Mostly the system
// lets it be first by itself; but not where it is painted alone, nor where it is to be painted
// again while its frames are.
LRESULT PaintUnderFrames(HWND window, WPARAM wParam, LPARAM lParam);

}  // namespace platform::win32
