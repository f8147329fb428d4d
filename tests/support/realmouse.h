#pragma once

#include <windows.h>

#include <doctest/doctest.h>

namespace support {

// The mouse itself, by what the system is told of it. While this lives it is the only one: a
// display echoes the moves, late when the machine is busy, and with them where the mouse was.
// Nothing is pressed over or before a window that is not the suite's: whose screen it is may have
// others open.
class RealMouse {
  public:
    RealMouse() = default;
    ~RealMouse() { UnhookWindowsHookEx(hook_); }
    RealMouse(const RealMouse&) = delete;
    RealMouse& operator=(const RealMouse&) = delete;

    // Onto that pixel of the window.
    static void MoveTo(HWND window, int x, int y) {
        POINT point{x, y};
        ClientToScreen(window, &point);
        SetCursorPos(point.x, point.y);
    }
    // MOUSEEVENTF_LEFTDOWN and its like.
    static void Send(DWORD what) {
        constexpr DWORD Releases = MOUSEEVENTF_LEFTUP | MOUSEEVENTF_RIGHTUP;
        POINT place{};
        GetCursorPos(&place);
        if (!(what & Releases) && !IsOwn(WindowFromPoint(place))) {
            FAIL_CHECK("the mouse is over a window of somebody else's");
            return;
        }
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = what;
        SendInput(1, &input, sizeof input);
    }
    static void Press(WORD key, bool down) {
        if (down && !IsOwn(GetForegroundWindow())) {
            FAIL_CHECK("a window of somebody else's is in front");
            return;
        }
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
    }

  private:
    static bool IsOwn(HWND window) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        return process == GetCurrentProcessId();
    }
    static LRESULT CALLBACK Filter(int code, WPARAM wParam, LPARAM lParam) {
        const auto& event = *reinterpret_cast<const MSLLHOOKSTRUCT*>(lParam);
        if (code == HC_ACTION && !(event.flags & LLMHF_INJECTED)) return 1;
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_ = SetWindowsHookExW(WH_MOUSE_LL, Filter, GetModuleHandleW(nullptr), 0);
};

}  // namespace support
