// The yardstick for start-up: one window with as many child windows as the command line says,
// made in the plainest way, and a message loop.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int show) {
    InitCommonControls();
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"BareWindow";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(L"BareWindow", L"Bare", WS_OVERLAPPEDWINDOW, 100, 100, 666, 528,
                                nullptr, nullptr, instance, nullptr);
    const int children = std::atoi(commandLine);
    for (int i = 0; i < children; ++i) {
        CreateWindowW(L"BUTTON", L"Option", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX,
                      10 + (i % 8) * 80, 10 + (i / 8) * 20, 76, 18, window, nullptr, instance,
                      nullptr);
    }
    ShowWindow(window, show);
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
