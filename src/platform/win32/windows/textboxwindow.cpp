#include "platform/win32/windows/textboxwindow.h"

#include "platform/win32/text.h"

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
    return {L"EDIT", bits, WS_EX_CLIENTEDGE};
}

void TextBoxWindow::Prepare() {
    const int limit = control_.Style().maxLength;
    Send(EM_SETLIMITTEXT, limit > 0 ? static_cast<WPARAM>(limit) : NoLimit);
}

// Setting a text takes the caret to its start, where nobody goes on typing.
void TextBoxWindow::ShowValue() {
    if (TextOf(Window()) == control_.Text()) return;
    DWORD caret = 0;
    Send(EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    showing_ = true;
    SetWindowTextW(Window(), ToWide(control_.Text()).c_str());
    showing_ = false;
    Send(EM_SETSEL, caret, static_cast<LPARAM>(caret));
}

// What the user types reaches the control at once; the field then shows what the control holds,
// which an event may have changed again.
void TextBoxWindow::Notified(UINT code) {
    if (code != EN_CHANGE || showing_) return;
    Guard([this] { control_.SetText(TextOf(Window())); });
    if (Window()) ShowValue();
}

}  // namespace platform::win32
