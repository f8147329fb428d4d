// How a form's window follows what the form holds.
#include "platform/win32/text.h"
#include "platform/win32/windows/formwindow.h"

namespace platform::win32 {

void FormWindow::Refresh(toolkit::FormAspect what) {
    switch (what) {
        case toolkit::FormAspect::Caption:
            SetWindowTextW(window_, ToWide(form_.Caption()).c_str());
            break;
        case toolkit::FormAspect::State:
            if (form_.Visible()) ShowState();
            break;
        case toolkit::FormAspect::Position:
            ShowPosition();
            break;
        case toolkit::FormAspect::Visible:
            ShowVisible();
            break;
        case toolkit::FormAspect::TaskbarEntry:
            ShowTaskbarEntry();
            break;
        case toolkit::FormAspect::Pointer:
            ShowPointer();
            break;
        case toolkit::FormAspect::Layered:
            SetWindowLongA(window_, GWL_EXSTYLE,
                           GetWindowLongA(window_, GWL_EXSTYLE) | WS_EX_LAYERED);
            break;
        case toolkit::FormAspect::LayerAttributes:
            SetLayeredWindowAttributes(window_, 0, static_cast<BYTE>(form_.Layer().alpha),
                                       static_cast<DWORD>(form_.Layer().flags));
            break;
    }
}

// The windows that a modal form has blocked come back before it goes: otherwise the system would
// hand the activation to another program.
void FormWindow::ShowVisible() {
    if (!form_.Visible()) {
        Unblock();
        ShowWindow(window_, SW_HIDE);
        // A modal loop looks at the form after each message from the queue only.
        PostMessageW(window_, WM_NULL, 0, 0);
        return;
    }
    // Captions may have changed since the window was made.
    controls_.Place(form_, window_);
    if (const auto first = controls_.Find(form_.firstFocus)) lastFocus_ = first->Window();
    ShowState();
    UpdateWindow(window_);
}

void FormWindow::ShowState() {
    switch (form_.State()) {
        case toolkit::WindowState::Normal:
            // Whatever has disabled the window stays in front of it.
            ShowWindow(window_, IsWindowEnabled(window_) ? SW_SHOWNORMAL : SW_SHOWNOACTIVATE);
            break;
        case toolkit::WindowState::Minimised:
            ShowWindow(window_, IsWindowVisible(window_) ? SW_MINIMIZE : SW_SHOWMINIMIZED);
            break;
        case toolkit::WindowState::Maximised:
            ShowWindow(window_, SW_SHOWMAXIMIZED);
            break;
    }
}

// A minimised or maximised window has its place from the system.
void FormWindow::ShowPosition() {
    if (IsIconic(window_) || IsZoomed(window_)) return;
    const toolkit::Bounds& place = form_.Place();
    const Screen& screen = surroundings_.screen;
    const bool nested = std::exchange(placing_, true);
    SetWindowPos(window_, nullptr, screen.ToPixels(place.left), screen.ToPixels(place.top),
                 screen.ToPixels(place.width), screen.ToPixels(place.height),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    placing_ = nested;
}

// The taskbar looks at the owner when a window comes into sight.
void FormWindow::ShowTaskbarEntry() {
    const bool visible = IsWindowVisible(window_);
    if (visible) ShowWindow(window_, SW_HIDE);
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(Owner()));
    if (visible) ShowWindow(window_, SW_SHOWNA);
}

// At once, since the work that the hourglass stands for lets no message through.
void FormWindow::ShowPointer() {
    const bool busy = form_.ShownPointer() == toolkit::Hourglass;
    SetCursor(LoadCursorW(nullptr, busy ? IDC_WAIT : IDC_ARROW));
}

}  // namespace platform::win32
