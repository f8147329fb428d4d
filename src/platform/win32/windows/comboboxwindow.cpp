#include "platform/win32/windows/comboboxwindow.h"

#include <algorithm>
#include <utility>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

// Lines that the list shows before it scrolls, where the system does not fit it to its items.
constexpr int ListLines = 8;

int HeightOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area.bottom - area.top;
}

}  // namespace

ControlWindow::Recipe ComboBoxWindow::Describe() const {
    const DWORD kind = control_.Style().listOnly ? CBS_DROPDOWNLIST : CBS_DROPDOWN;
    return {L"COMBOBOX", kind | CBS_AUTOHSCROLL | WS_VSCROLL};
}

void ComboBoxWindow::Prepare() {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(Window(), &parts);
    list_ = parts.hwndList;
    field_ = control_.Style().listOnly ? nullptr : parts.hwndItem;
    Send(CB_LIMITTEXT, static_cast<WPARAM>(control_.Style().maxLength));
    WatchTyping(field_ ? field_ : Window(), control_.onKeyPress);
    if (field_) WatchText();
    ShowItems();
}

// To the open list, which they close.
bool ComboBoxWindow::IsCommand(WPARAM character) const {
    const bool closes = character == VK_RETURN || character == VK_ESCAPE;
    return (closes && Send(CB_GETDROPPEDSTATE)) || TypingWindow::IsCommand(character);
}

// The system does not tell of a text that a script has set.
void ComboBoxWindow::WatchText() {
    text_.Watch(Window(), [this](HookedMessage& hooked) {
        const auto alive = shared_from_this();
        const LRESULT result = hooked.Pass();
        if (hooked.message == WM_SETTEXT && Window()) Notified(CBN_EDITCHANGE);
        return result;
    });
}

void ComboBoxWindow::Detach() {
    text_.Leave();
    TypingWindow::Detach();
}

void ComboBoxWindow::SetFieldHeight(int height) const {
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
}

// The height that the system is told is the one with the list dropped down. The closed one follows
// from the field, and only the placed window shows how wide the edges around that are.
bool ComboBoxWindow::PlaceAt(const toolkit::Rect& area) {
    const int line = static_cast<int>(Send(CB_GETITEMHEIGHT, 0));
    toolkit::Rect whole = area;
    whole.height += ListLines * line + 2;
    if (!ControlWindow::PlaceAt(whole)) return false;
    if (HeightOf(Window()) == area.height) return true;
    SetFieldHeight(area.height);
    SetFieldHeight(std::max(1, 2 * area.height - HeightOf(Window())));
    return true;
}

// The control's list grows at its end or is emptied.
void ComboBoxWindow::ShowItems() {
    const bool nested = std::exchange(showing_, true);
    const auto& items = control_.Items();
    auto shown = static_cast<std::size_t>(Send(CB_GETCOUNT));
    if (shown > items.size()) {
        Send(CB_RESETCONTENT);
        shown = 0;
    }
    for (; shown < items.size(); ++shown) {
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(items[shown]).c_str()));
    }
    showing_ = nested;
}

// The selection is set in the list itself: set through the box it would take the typed text away.
void ComboBoxWindow::ShowValue() {
    const auto index = static_cast<WPARAM>(control_.ListIndex());
    if (!field_) {
        if (Send(CB_GETCURSEL) != control_.ListIndex()) Send(CB_SETCURSEL, index);
        return;
    }
    const bool nested = std::exchange(showing_, true);
    if (Send(CB_GETCURSEL) != control_.ListIndex()) SendMessageW(list_, LB_SETCURSEL, index, 0);
    ShowText(field_, control_.Text());
    showing_ = nested;
}

void ComboBoxWindow::Notified(UINT code) {
    if (showing_) return;
    switch (code) {
        case CBN_EDITCHANGE:
            Typed();
            break;
        // The second comes where the list closes over an item that it had found by itself.
        case CBN_SELCHANGE:
        case CBN_SELENDOK:
            Picked();
            break;
        // Dropped by the keyboard, the class completes what is typed to an item, and tells of that
        // neither then nor where the list is left by Escape.
        case CBN_CLOSEUP:
            if (field_) Typed();
            break;
        default:
            break;
    }
}

void ComboBoxWindow::Typed() {
    Guard([this] { control_.SetText(TextOf(Window())); });
    if (Window()) ShowValue();
}

void ComboBoxWindow::Picked() {
    const int index = static_cast<int>(Send(CB_GETCURSEL));
    if (index == CB_ERR) return;
    Guard([this, index] { control_.SetListIndex(index); });
    if (Window()) ShowValue();
}

}  // namespace platform::win32
