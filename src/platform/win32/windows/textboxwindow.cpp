#include "platform/win32/windows/textboxwindow.h"

namespace platform::win32 {
namespace {

// The most that an edit field can be told.
constexpr WPARAM NoLimit = 0x7FFFFFFE;

}  // namespace

ControlWindow::Recipe TextBoxWindow::Describe() const {
    const toolkit::TextBoxStyle& style = control_.Style();
    DWORD bits = style.multiLine ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL
                                 : ES_AUTOHSCROLL;
    if (style.password) bits |= ES_PASSWORD;
    if (style.readOnly) bits = (bits | ES_READONLY) & ~static_cast<DWORD>(ES_WANTRETURN);
    return {L"EDIT", bits, WS_EX_CLIENTEDGE};
}

void TextBoxWindow::Prepare() {
    const int limit = control_.Style().maxLength;
    // Counted in quarters of an average character.
    const UINT distance = static_cast<UINT>(control_.Style().tabWidth) * 4;
    if (distance > 0) Send(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&distance));
    Send(EM_SETLIMITTEXT, limit > 0 ? static_cast<WPARAM>(limit) : NoLimit);
    WatchTyping(Window(), control_.onKeyPress);
}

void TextBoxWindow::ShowValue() {
    showing_ = true;
    ShowText(Window(), control_.Text());
    showing_ = false;
}

// What the user types reaches the control at once; the field then shows what the control holds,
// which an event may have changed again.
void TextBoxWindow::Notified(UINT code) {
    if (code != EN_CHANGE || showing_) return;
    Guard([this] { control_.SetText(TextOf(Window())); });
    if (Window()) ShowValue();
}

}  // namespace platform::win32
