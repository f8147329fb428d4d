#include "platform/win32/windows/listboxwindow.h"

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

// What a line is wider than its text, in pixels at 96 dots per inch.
constexpr int LineEdges = 4;

}  // namespace

ControlWindow::Recipe ListBoxWindow::Describe() const {
    return {L"LISTBOX", LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL, WS_EX_CLIENTEDGE};
}

void ListBoxWindow::Prepare() {
    letter_ = surroundings_.screen.WidthOf(L"W");
    ShowItems();
}

// The control's list grows at its end or is emptied.
void ListBoxWindow::ShowItems() {
    const auto& items = control_.Items();
    auto shown = static_cast<std::size_t>(Send(LB_GETCOUNT));
    if (shown > items.size()) {
        Send(LB_RESETCONTENT);
        Send(LB_SETHORIZONTALEXTENT, 0);
        shown = 0;
        widest_ = 0;
    }
    for (; shown < items.size(); ++shown) {
        const std::wstring text = ToWide(items[shown]);
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        MakeRoomFor(items[shown], text);
    }
}

// The class scrolls as far as it is told. Few letters are wider than this one, so most lines need
// no measuring.
void ListBoxWindow::MakeRoomFor(const std::string& item, const std::wstring& text) {
    if (static_cast<int>(item.size()) * letter_ <= widest_) return;
    const int own = surroundings_.screen.WidthOf(text);
    if (own <= widest_) return;
    widest_ = own;
    Send(LB_SETHORIZONTALEXTENT,
         static_cast<WPARAM>(widest_ + surroundings_.screen.Scale(LineEdges)));
}

}  // namespace platform::win32
