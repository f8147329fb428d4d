#include "endtoend/trayuser.h"

#include <shellapi.h>

#include <vector>

#include "endtoend/pages.h"

namespace endtoend {
namespace {

// The program's numbers for its icon and for the icon's message.
constexpr UINT IconId = 1;
constexpr UINT IconMessage = WM_APP + 1;

// The windows of that class that belong to the program; one of them stands behind the icon.
std::vector<HWND> HiddenWindows(const Program& program) {
    std::vector<HWND> windows = program.TopLevel();
    std::erase_if(windows, [](HWND window) { return ClassOf(window) != "QuillmoreHidden"; });
    return windows;
}

}  // namespace

void TrayUser::Hide() const {
    program_.OpenTab(UtilitiesPage);
    program_.SetChecked("chkTrayIcon", true);
    PostMessageW(program_.Find("frmMain"), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    program_.WaitGone("frmMain");
}

void TrayUser::Mouse(UINT event) const {
    for (const HWND window : HiddenWindows(program_)) {
        PostMessageW(window, IconMessage, 0, static_cast<LPARAM>(event));
    }
}

HWND TrayUser::Menu() const {
    for (const HWND window : program_.TopLevel()) {
        if (ClassOf(window) == "#32768" && IsWindowVisible(window)) return window;
    }
    return nullptr;
}

void TrayUser::Choose(int item) const {
    Mouse(WM_RBUTTONUP);
    Until("the tray menu", [&] { return Menu() != nullptr; });
    for (int step = 0; step < item; ++step) PostMessageW(Menu(), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(Menu(), WM_KEYDOWN, VK_RETURN, 0);
    Until("the tray menu's end", [&] { return Menu() == nullptr; });
}

bool TrayUser::NotifyShell(DWORD action) const {
    bool taken = false;
    for (const HWND window : HiddenWindows(program_)) {
        NOTIFYICONDATAW record = {};
        record.cbSize = NOTIFYICONDATAW_V2_SIZE;
        record.hWnd = window;
        record.uID = IconId;
        if (Shell_NotifyIconW(action, &record)) taken = true;
    }
    return taken;
}

// A change that changes nothing is refused when there is no such icon.
bool TrayUser::HasIcon() const {
    return NotifyShell(NIM_MODIFY);
}

void TrayUser::LoseIcon() const {
    NotifyShell(NIM_DELETE);
}

void TrayUser::DoubleClickIcon() {
    constexpr int HalfAnIcon = 8;
    const HWND taskbar = FindWindowW(L"Shell_TrayWnd", nullptr);
    RECT area = {};
    GetClientRect(taskbar, &area);
    POINT middle = {area.right - HalfAnIcon, area.bottom / 2};
    // Wine 8 draws the icons into the taskbar, Wine 10 gives each a window of its own.
    const HWND icon = ChildWindowFromPoint(taskbar, middle);
    MapWindowPoints(taskbar, icon, &middle, 1);
    PostMessageW(icon, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
}

void TrayUser::TellStart() {
    SendMessageTimeoutW(HWND_BROADCAST, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0,
                        SMTO_ABORTIFHUNG, 2000, nullptr);
}

}  // namespace endtoend
