#include "platform/win32/messages.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

// The window over which a box belongs. None while the program is in the background or all its
// windows are hidden; a hidden owner would leave the box without a place on the taskbar.
HWND ActiveWindow() {
    const HWND active = GetActiveWindow();
    if (!active) return nullptr;
    const HWND popup = GetLastActivePopup(active);
    return IsWindowVisible(popup) ? popup : nullptr;
}

}  // namespace

int Messages::Show(std::string_view text, int style, std::string_view title) {
    // Task-modal: without an owner all windows of the program are disabled, as an owner would be.
    const int answer = MessageBoxW(ActiveWindow(), ToWide(text).c_str(), ToWide(title).c_str(),
                                   static_cast<UINT>(style) | MB_TASKMODAL);
    // Wine tells -1 of a box that it could not make.
    return std::max(answer, 0);
}

}  // namespace platform::win32
