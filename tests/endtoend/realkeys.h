#pragma once

#include <windows.h>

// Keys that go the way of real ones, through the system's queue, to whatever window has the focus.
namespace endtoend {

inline void Key(int virtualKey, bool down) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtualKey);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(virtualKey), 0));
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    // Those beside the number pad.
    if (virtualKey == VK_HOME || virtualKey == VK_END) input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
    SendInput(1, &input, sizeof input);
}

inline void Press(int virtualKey) {
    Key(virtualKey, true);
    Key(virtualKey, false);
}

inline void PressWith(int held, int virtualKey) {
    Key(held, true);
    Press(virtualKey);
    Key(held, false);
}

}  // namespace endtoend
