#include "platform/win32/windows/paintunder.h"

namespace platform::win32 {

LRESULT PaintUnderFrames(HWND window, WPARAM wParam, LPARAM lParam) {
    RECT painted{};
    const bool paints = GetUpdateRect(window, &painted, FALSE) != FALSE;
    const LRESULT result = DefWindowProcW(window, WM_PAINT, wParam, lParam);
    if (!paints) return result;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!(GetWindowLongW(child, GWL_EXSTYLE) & WS_EX_TRANSPARENT)) continue;
        RECT area = painted;
        MapWindowPoints(window, child, reinterpret_cast<POINT*>(&area), 2);
        InvalidateRect(child, &area, FALSE);
    }
    return result;
}

}  // namespace platform::win32
