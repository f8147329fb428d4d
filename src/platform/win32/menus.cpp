#include "platform/win32/menus.h"

#include "platform/win32/text.h"
#include "toolkit/popupmenu.h"

namespace platform::win32 {
namespace {

// An item's id is its place, counted from 1.
MenuHandle MakeMenu(const toolkit::PopupMenu& menu) {
    MenuHandle made(CreatePopupMenu());
    UINT_PTR id = 0;
    for (const toolkit::MenuItem& item : menu.items) {
        ++id;
        if (item.IsSeparator()) {
            AppendMenuW(made.Get(), MF_SEPARATOR, id, nullptr);
        } else {
            const UINT flags = item.enabled ? MF_STRING : MF_STRING | MF_GRAYED;
            AppendMenuW(made.Get(), flags, id, ToWide(item.caption).c_str());
        }
    }
    return made;
}

// The program's window that has the keyboard.
HWND OwnWindowInFront() {
    const HWND active = GetActiveWindow();
    return active == GetForegroundWindow() && IsWindowVisible(active) ? active : nullptr;
}

}  // namespace

const toolkit::MenuItem* Menus::Choose(const toolkit::PopupMenu& menu) {
    if (open_) return nullptr;
    const MenuHandle made = MakeMenu(menu);
    POINT place{};
    GetCursorPos(&place);
    if (menu.place) place = {menu.place->x, menu.place->y};
    HWND owner = OwnWindowInFront();
    if (!owner) {
        owner = window_.Get();
        before_ = GetForegroundWindow();
        // A box without an owner has disabled it with all other windows.
        EnableWindow(owner, TRUE);
        // A menu whose window is not in front stays open when the user clicks elsewhere.
        SetForegroundWindow(owner);
    }
    open_ = true;
    const int chosen = TrackPopupMenu(made.Get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                      place.x, place.y, 0, owner, nullptr);
    open_ = false;
    // Without a message behind the menu the next one vanishes as soon as it appears.
    PostMessageW(window_.Get(), WM_NULL, 0, 0);
    return chosen > 0 ? &menu.items[static_cast<std::size_t>(chosen - 1)] : nullptr;
}

// When the message behind the menu comes, what was chosen has brought its own window to the front.
void Menus::GiveKeyboardBack() {
    if (GetForegroundWindow() == window_.Get()) SetForegroundWindow(before_);
}

}  // namespace platform::win32
