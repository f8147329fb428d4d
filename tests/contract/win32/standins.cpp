#include "contract/win32/standins.h"

#include <commctrl.h>

#include "platform/win32/text.h"

namespace contract {

using platform::win32::ToWide;

StandIns::~StandIns() {
    // Children go with their parents, so each is closed while it is still there.
    while (!windows_.empty()) Close(windows_.begin()->first);
    for (const std::wstring& name : classes_) {
        UnregisterClassW(name.c_str(), GetModuleHandleW(nullptr));
    }
}

HWND StandIns::Open(std::string_view className, std::string_view title, HWND parent) {
    InitCommonControls();
    const std::wstring name = ToWide(className);
    WNDCLASSW known = {};
    if (!GetClassInfoW(nullptr, name.c_str(), &known) &&
        !GetClassInfoW(GetModuleHandleW(nullptr), name.c_str(), &known)) {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = name.c_str();
        RegisterClassW(&windowClass);
        classes_.push_back(name);
    }
    const DWORD style = parent ? WS_CHILD : WS_POPUP;
    const HWND window = CreateWindowExW(parent ? 0 : WS_EX_TOPMOST, name.c_str(),
                                        ToWide(title).c_str(), style | WS_VISIBLE, 0, 0, 100, 100,
                                        parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowPos(window, parent ? HWND_TOP : HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    windows_.emplace(window, window);
    return window;
}

void StandIns::Close(HWND window) {
    while (const HWND child = GetWindow(window, GW_CHILD)) {
        if (!windows_.contains(child)) break;
        Close(child);
    }
    windows_.erase(window);
    redraws_.erase(window);
}

WindowLook StandIns::LookAt(HWND window) const {
    WindowLook look;
    BYTE alpha = 255;
    DWORD flags = 0;
    if (GetLayeredWindowAttributes(window, nullptr, &alpha, &flags) && (flags & LWA_ALPHA)) {
        look.alpha = alpha;
    }
    look.extendedStyle = static_cast<std::uint32_t>(GetWindowLongW(window, GWL_EXSTYLE));
    RECT place = {};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    look.place = {static_cast<int>(place.left), static_cast<int>(place.top),
                  static_cast<int>(place.right - place.left),
                  static_cast<int>(place.bottom - place.top)};
    look.visible = (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
    look.textBackground =
        static_cast<std::uint32_t>(SendMessageW(window, LVM_GETTEXTBKCOLOR, 0, 0));
    const auto counted = redraws_.find(window);
    look.redraws = counted == redraws_.end() ? 0 : counted->second;
    return look;
}

LRESULT CALLBACK StandIns::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Painting by itself asks for the background only where it was to be erased.
    if (message == WM_ERASEBKGND) {
        ++redraws_[window];
        return 1;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace contract
