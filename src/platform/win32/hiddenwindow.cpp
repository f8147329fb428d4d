#include "platform/win32/hiddenwindow.h"

namespace platform::win32 {
namespace {

constexpr wchar_t ClassName[] = L"QuillmoreHidden";

}  // namespace

HWND HiddenWindow::Get() {
    if (window_) return window_.Get();
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = ClassName;
    // A second window finds the class registered already.
    RegisterClassW(&windowClass);
    window_.Reset(CreateWindowExW(WS_EX_TOOLWINDOW, ClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                  nullptr, windowClass.hInstance, nullptr));
    SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return window_.Get();
}

LRESULT CALLBACK HiddenWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<HiddenWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    // Whoever closes all windows of the program does not mean this one: it could not come back.
    if (message == WM_CLOSE) return 0;
    if (self) self->receive_(message, wParam, lParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace platform::win32
