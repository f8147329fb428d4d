#include "platform/win32/windows/controlwindow.h"

#include <commctrl.h>

#include "platform/win32/text.h"

namespace platform::win32 {

ControlWindow::~ControlWindow() = default;

void ControlWindow::Create(HWND parent, int id, const toolkit::Rect& area) {
    const Recipe recipe = Describe();
    DWORD style = WS_CHILD | WS_CLIPSIBLINGS | recipe.style;
    if (control_.IsTabStop()) style |= WS_TABSTOP;
    if (control_.Visible()) style |= WS_VISIBLE;
    if (!control_.Enabled()) style |= WS_DISABLED;
    area_ = area;
    window_ = CreateWindowExW(
        recipe.extendedStyle, recipe.windowClass, ToWide(control_.Caption()).c_str(), style,
        area.left, area.top, area.width, area.height, parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), this);
    name_.emplace(window_, control_.Name());
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(Font()), FALSE);
    control_.SetView(this);
    Prepare();
    ShowValue();
}

void ControlWindow::Detach() {
    if (!window_) return;
    control_.SetView(nullptr);
    name_.reset();
    window_ = nullptr;
}

bool ControlWindow::PlaceAt(const toolkit::Rect& area) {
    if (area == area_) return false;
    area_ = area;
    SetWindowPos(window_, nullptr, area.left, area.top, area.width, area.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}

bool ControlWindow::TakesFocus() const {
    return window_ && control_.IsTabStop() && IsWindowEnabled(window_) && IsWindowVisible(window_);
}

void ControlWindow::Refresh(toolkit::Aspect what) {
    switch (what) {
        case toolkit::Aspect::Value:
            ShowValue();
            break;
        case toolkit::Aspect::Items:
            ShowItems();
            break;
        case toolkit::Aspect::Caption:
            SetWindowTextW(window_, ToWide(control_.Caption()).c_str());
            break;
        case toolkit::Aspect::Enabled: {
            const HWND heir = !control_.Enabled() && HasFocus() ? Heir() : nullptr;
            EnableWindow(window_, control_.Enabled());
            if (heir) FocusLikeDialog(heir);
            break;
        }
        case toolkit::Aspect::Visible: {
            const HWND heir = !control_.Visible() && HasFocus() ? Heir() : nullptr;
            ShowWindow(window_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
            if (heir) FocusLikeDialog(heir);
            break;
        }
        case toolkit::Aspect::Limits:
            Prepare();
            break;
        case toolkit::Aspect::TextColour:
            Repaint();
            break;
        case toolkit::Aspect::ToolTip:
            if (TipText().empty()) {
                tip_.Leave();
            } else {
                tip_.ShowChange(window_);
            }
            break;
    }
}

void ControlWindow::PointerCame() {
    if (!TipText().empty()) tip_.Offer(window_);
}

bool ControlWindow::HasFocus() const {
    const HWND focus = GetFocus();
    return focus == window_ || IsChild(window_, focus);
}

void ControlWindow::Repaint() {
    InvalidateRect(window_, nullptr, TRUE);
}

void ControlWindow::PaintNow() {
    UpdateWindow(window_);
}

bool ControlWindow::PointerIsOver() const {
    POINT pointer{};
    return GetCursorPos(&pointer) && WindowFromPoint(pointer) == window_;
}

void ControlWindow::TakeFocus() {
    FocusLikeDialog(window_);
}

void ControlWindow::CaptureMouse() {
    SetCapture(window_);
}

void ControlWindow::MoveFocus(bool forward) {
    const HWND next = GetNextDlgTabItem(GetAncestor(window_, GA_ROOT), window_, !forward);
    if (next) FocusLikeDialog(next);
}

// Asked of the system only while this is in use: it walks in a ring until it comes back, and it
// passes over what is not in use, so that it might never come back.
HWND ControlWindow::Heir() const {
    const HWND form = GetAncestor(window_, GA_ROOT);
    if (!IsWindowEnabled(window_) || !IsWindowVisible(window_)) return form;
    const HWND next = GetNextDlgTabItem(form, window_, FALSE);
    return next != window_ && IsTabStop(next) ? next : form;
}

bool IsTabStop(HWND window) {
    return (GetWindowLongW(window, GWL_STYLE) & WS_TABSTOP) && IsWindowEnabled(window) &&
           IsWindowVisible(window);
}

void FocusLikeDialog(HWND window) {
    SetFocus(window);
    if (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) {
        SendMessageW(window, EM_SETSEL, 0, -1);
    }
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return FromWide({text.data(), static_cast<std::size_t>(length)});
}

void ShowText(HWND field, std::string_view text) {
    if (TextOf(field) == text) return;
    DWORD caret = 0;
    SendMessageW(field, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    SetWindowTextW(field, ToWide(text).c_str());
    SendMessageW(field, EM_SETSEL, caret, static_cast<LPARAM>(caret));
}

}  // namespace platform::win32
