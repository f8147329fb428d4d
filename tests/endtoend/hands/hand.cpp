#include "endtoend/hands/hand.h"

#include "endtoend/automation.h"

namespace endtoend {
namespace {

// Those that share their scan code with the number pad.
bool IsExtended(int virtualKey) {
    switch (virtualKey) {
        case VK_HOME:
        case VK_END:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_INSERT:
        case VK_DELETE:
        case VK_APPS:
            return true;
        default:
            return false;
    }
}

void MoveKey(int virtualKey, bool down) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtualKey);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(virtualKey), 0));
    input.ki.dwFlags =
        (down ? 0u : KEYEVENTF_KEYUP) | (IsExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0u);
    SendInput(1, &input, sizeof input);
}

void SendMouse(DWORD what, POINT place) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // The last pixel is 65535, and what is between is cut off.
    const auto share = [](LONG at, int size) { return (at * 65536 + 32768) / size; };
    input.mi.dx = share(place.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = share(place.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = what | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    SendInput(1, &input, sizeof input);
}

}  // namespace

Sight See() {
    Sight sight;
    sight.front = GetForegroundWindow();
    if (!sight.front) return sight;
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(sight.front, nullptr), &thread)) return sight;
    sight.focus = thread.hwndFocus;
    sight.menu = (thread.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
    return sight;
}

std::string SeenName(HWND window) {
    for (; window; window = GetAncestor(window, GA_PARENT)) {
        const std::string name = NameOf(window);
        if (!name.empty()) return name;
        if (GetAncestor(window, GA_ROOT) == window) return ClassOf(window);
    }
    return "none";
}

std::string SeenWindow(HWND window) {
    if (!window) return "none";
    const std::string name = NameOf(window);
    if (!name.empty()) return name;
    wchar_t title[200] = L"";
    InternalGetWindowText(window, title, 200);
    char text[600] = "";
    WideCharToMultiByte(CP_UTF8, 0, title, -1, text, sizeof text, nullptr, nullptr);
    return '"' + std::string(text) + '"';
}

std::string Describe(const Sight& sight) {
    const std::string focus = !sight.focus ? "none"
                              : !NameOf(sight.focus).empty()
                                  ? NameOf(sight.focus)
                                  : SeenName(sight.focus) + " (" + ClassOf(sight.focus) + ')';
    return "in front " + SeenWindow(sight.front) + ", focus " + focus +
           (sight.menu ? ", a menu open" : "");
}

void Type(int virtualKey, std::initializer_list<int> held) {
    for (const int key : held) MoveKey(key, true);
    MoveKey(virtualKey, true);
    MoveKey(virtualKey, false);
    for (const int* key = held.end(); key != held.begin();) MoveKey(*--key, false);
}

void TypeCharacter(wchar_t character, std::initializer_list<int> held) {
    const SHORT key = VkKeyScanW(character);
    const bool shift = HIBYTE(key) & 1;
    if (shift) MoveKey(VK_SHIFT, true);
    Type(LOBYTE(key), held);
    if (shift) MoveKey(VK_SHIFT, false);
}

POINT MiddleOf(HWND window) {
    RECT area = {};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

// A display echoes the moves, late when the machine is busy, and with them where the mouse was.
void MoveMouse(POINT place) {
    constexpr int Settled = 3;
    int still = 0;
    for (int tries = 0; still < Settled && tries < 100; ++tries) {
        POINT at = {};
        GetCursorPos(&at);
        if (at.x == place.x && at.y == place.y) {
            ++still;
        } else {
            still = 0;
            SendMouse(0, place);
        }
        Sleep(4);
    }
}

void ClickMouse(POINT place, Button button, int times) {
    MoveMouse(place);
    for (; times > 0; --times) {
        SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, place);
        SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, place);
    }
}

bool Answers(HWND window, unsigned milliseconds) {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, milliseconds, &answer) != 0;
}

}  // namespace endtoend
