#include "platform/win32/otherwindows.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/win32/text.h"

namespace platform::win32 {

static_assert(OtherWindows::Layered == WS_EX_LAYERED && OtherWindows::UseAlpha == LWA_ALPHA);
static_assert(OtherWindows::SetTextBackground == LVM_SETTEXTBKCOLOR &&
              OtherWindows::NoColour == CLR_NONE);
static_assert(OtherWindows::KeepSize == SWP_NOSIZE && OtherWindows::KeepPlace == SWP_NOMOVE);
static_assert(OtherWindows::ShowIt == SWP_SHOWWINDOW && OtherWindows::HideIt == SWP_HIDEWINDOW);

namespace {

HWND Window(OtherWindows::Handle handle) {
    return reinterpret_cast<HWND>(handle);
}

OtherWindows::Handle HandleOf(HWND window) {
    return reinterpret_cast<OtherWindows::Handle>(window);
}

}  // namespace

OtherWindows::Handle OtherWindows::Find(const std::string& className, const char* title) const {
    return HandleOf(
        FindWindowA(ToAnsi(className).c_str(), title ? ToAnsi(title).c_str() : nullptr));
}

OtherWindows::Handle OtherWindows::FindChild(Handle parent, const std::string& className) const {
    // Without a parent the call would look among the desktop's children.
    if (parent == 0) return 0;
    return HandleOf(FindWindowExA(Window(parent), nullptr, ToAnsi(className).c_str(), nullptr));
}

std::uint32_t OtherWindows::ExtendedStyle(Handle window) const {
    return static_cast<std::uint32_t>(GetWindowLongA(Window(window), GWL_EXSTYLE));
}

void OtherWindows::SetExtendedStyle(Handle window, std::uint32_t style) {
    SetWindowLongA(Window(window), GWL_EXSTYLE, static_cast<LONG>(style));
}

void OtherWindows::SetLayeredAttributes(Handle window, std::uint32_t colourKey, std::uint8_t alpha,
                                        std::uint32_t flags) {
    SetLayeredWindowAttributes(Window(window), colourKey, alpha, flags);
}

std::int32_t OtherWindows::Send(Handle window, std::uint32_t message, std::uint32_t wParam,
                                std::uint32_t lParam) {
    return SendMessageA(Window(window), message, wParam, static_cast<LPARAM>(lParam));
}

void OtherWindows::SetPosition(Handle window, Handle after, const toolkit::Rect& place,
                               std::uint32_t flags) {
    SetWindowPos(Window(window), Window(after), place.left, place.top, place.width, place.height,
                 flags);
}

void OtherWindows::Redraw(Handle window) {
    // A null window would mean all windows of the desktop.
    if (window == 0) return;
    InvalidateRect(Window(window), nullptr, TRUE);
    UpdateWindow(Window(window));
}

}  // namespace platform::win32
