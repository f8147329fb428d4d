#include "platform/win32/windows/listboxwindow.h"

#include "platform/win32/text.h"

namespace platform::win32 {

ControlWindow::Recipe ListBoxWindow::Describe() const {
    return {L"LISTBOX", LBS_NOINTEGRALHEIGHT | WS_VSCROLL, WS_EX_CLIENTEDGE};
}

void ListBoxWindow::Prepare() {
    ShowItems();
}

// The control's list grows at its end or is emptied.
void ListBoxWindow::ShowItems() {
    const auto& items = control_.Items();
    auto shown = static_cast<std::size_t>(Send(LB_GETCOUNT));
    if (shown > items.size()) {
        Send(LB_RESETCONTENT);
        shown = 0;
    }
    for (; shown < items.size(); ++shown) {
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(items[shown]).c_str()));
    }
}

}  // namespace platform::win32
