#include "platform/win32/windows/messagehook.h"

#include <utility>

namespace platform::win32 {

void MessageHook::Watch(HWND window, Handler handler) {
    if (window_) return;
    window_ = window;
    handler_ = std::move(handler);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    behind_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

void MessageHook::Leave() {
    if (!window_) return;
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(behind_));
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    window_ = nullptr;
}

LRESULT CALLBACK MessageHook::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* hook =
        reinterpret_cast<const MessageHook*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    // A copy, since the handler may end the hook that holds it.
    const Handler handler = hook->handler_;
    HookedMessage hooked{window, message, wParam, lParam, hook->behind_};
    return handler(hooked);
}

}  // namespace platform::win32
