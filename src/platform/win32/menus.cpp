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

}  // namespace

const toolkit::MenuItem* Menus::Choose(const toolkit::PopupMenu& menu) {
    if (open_) return nullptr;
    const MenuHandle made = MakeMenu(menu);
    POINT mouse{};
    GetCursorPos(&mouse);
    // A menu whose window is not in front stays open when the user clicks elsewhere.
    SetForegroundWindow(window_.Get());
    open_ = true;
    const int chosen = TrackPopupMenu(made.Get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                      mouse.x, mouse.y, 0, window_.Get(), nullptr);
    open_ = false;
    // Without a message behind the menu the next one vanishes as soon as it appears.
    PostMessageW(window_.Get(), WM_NULL, 0, 0);
    return chosen > 0 ? &menu.items[static_cast<std::size_t>(chosen - 1)] : nullptr;
}

}  // namespace platform::win32
