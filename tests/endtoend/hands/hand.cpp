#include "endtoend/hands/hand.h"

#include "endtoend/automation.h"
#include "platform/win32/text.h"

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

LRESULT CALLBACK DropEcho(int code, WPARAM wParam, LPARAM lParam) {
    const auto& event = *reinterpret_cast<const MSLLHOOKSTRUCT*>(lParam);
    if (code == HC_ACTION && !(event.flags & LLMHF_INJECTED)) return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The system calls the hook while its thread asks for messages.
DWORD WINAPI DropEchoes(void* ready) {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    const HHOOK hook = SetWindowsHookExW(WH_MOUSE_LL, DropEcho, GetModuleHandleW(nullptr), 0);
    SetEvent(ready);
    while (GetMessageW(&message, nullptr, 0, 0) > 0) continue;
    UnhookWindowsHookEx(hook);
    return 0;
}

}  // namespace

OnlyMouse::OnlyMouse() {
    const platform::win32::KernelHandle ready(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    thread_ =
        platform::win32::KernelHandle(CreateThread(nullptr, 0, DropEchoes, ready.Get(), 0, &id_));
    WaitForSingleObject(ready.Get(), INFINITE);
}

OnlyMouse::~OnlyMouse() {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    WaitForSingleObject(thread_.Get(), INFINITE);
}

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

std::string SeenTitle(HWND window) {
    wchar_t title[200] = L"";
    InternalGetWindowText(window, title, 200);
    return platform::win32::FromWide(title);
}

std::string SeenWindow(HWND window) {
    if (!window) return "none";
    const std::string name = NameOf(window);
    return name.empty() ? '"' + SeenTitle(window) + '"' : name;
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

void MoveMouse(POINT place) {
    SendMouse(0, place);
}

void ClickMouse(POINT place, Button button, int times) {
    MoveMouse(place);
    for (; times > 0; --times) {
        SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, place);
        SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, place);
    }
}

void DragMouse(POINT from, POINT to) {
    MoveMouse(from);
    SendMouse(MOUSEEVENTF_LEFTDOWN, from);
    MoveMouse(to);
    SendMouse(MOUSEEVENTF_LEFTUP, to);
}

POINT TrayIcon() {
    constexpr int HalfAnIcon = 8;
    RECT area = {};
    GetWindowRect(FindWindowW(L"Shell_TrayWnd", nullptr), &area);
    return {area.right - HalfAnIcon, (area.top + area.bottom) / 2};
}

bool Answers(HWND window, unsigned milliseconds) {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, milliseconds, &answer) != 0;
}

}  // namespace endtoend
