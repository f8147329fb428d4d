// What a form's window is told by the system and by its controls.
#include "platform/win32/windows/formwindow.h"
#include "platform/win32/windows/paintunder.h"
#include "toolkit/drawncontrol.h"

namespace platform::win32 {
namespace {

// The place in twips, except that what the window's pixels stand for already keeps its exact value.
toolkit::Bounds Measured(const RECT& area, const toolkit::Bounds& known, const Screen& screen) {
    const auto twips = [&](LONG pixels, float before) {
        return screen.ToPixels(before) == pixels ? before : screen.ToTwips(pixels);
    };
    return {twips(area.left, known.left), twips(area.top, known.top),
            twips(area.right - area.left, known.width),
            twips(area.bottom - area.top, known.height)};
}

toolkit::WindowState StateOf(HWND window) {
    if (IsIconic(window)) return toolkit::WindowState::Minimised;
    return IsZoomed(window) ? toolkit::WindowState::Maximised : toolkit::WindowState::Normal;
}

// Whether the mouse moves inside the window, or there while a dialog keeps the user from it.
bool IsInside(LPARAM place) {
    return LOWORD(place) == HTCLIENT ||
           (LOWORD(place) == LOWORD(HTERROR) && HIWORD(place) == WM_MOUSEMOVE);
}

}  // namespace

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* facts = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(facts->lpCreateParams));
    }
    auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!form || !form->window_) return DefWindowProcW(window, message, wParam, lParam);
    const std::shared_ptr<FormWindow> alive = form->shared_from_this();
    return form->Handle(message, wParam, lParam);
}

LRESULT FormWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = window_;
    switch (message) {
        case WM_COMMAND:
            Command(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_NOTIFY: {
            auto* notice = reinterpret_cast<NMHDR*>(lParam);
            if (notice->code == TTN_GETDISPINFOW) {
                AnswerTip(*reinterpret_cast<NMTTDISPINFOW*>(notice));
                return 0;
            }
            const auto control = controls_.Find(notice->hwndFrom);
            return control ? control->Noticed(*notice) : 0;
        }
        case WM_HSCROLL:
        case WM_VSCROLL:
            if (const auto control = controls_.Find(reinterpret_cast<HWND>(lParam))) {
                control->Notified(LOWORD(wParam));
            }
            return 0;
        case WM_MOUSEMOVE:
            surroundings_.Guard([this] { form_.MouseMoved(); });
            return 0;
        case WM_PAINT:
            return PaintUnderFrames(window, wParam, lParam);
        case WM_CTLCOLORSTATIC: {
            const LRESULT brush = DefWindowProcW(window, message, wParam, lParam);
            if (const auto control = controls_.Find(reinterpret_cast<HWND>(lParam))) {
                control->SetColours(reinterpret_cast<HDC>(wParam));
            }
            return brush;
        }
        // A field of several lines handles the tabulator itself, by asking for this. For an arrow
        // key a system may name the window.
        case WM_NEXTDLGCTL:
            if (LOWORD(lParam)) {
                const auto named = controls_.Find(reinterpret_cast<HWND>(wParam));
                if (named && named->TakesFocus()) named->TakeFocus();
            } else if (const auto focused = controls_.Find(GetFocus())) {
                focused->MoveFocus(wParam == 0);
            }
            return 0;
        case DM_GETDEFID:
            return MAKELRESULT(IDOK, DC_HASDEFID);
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) controls_.Place(form_, window);
            ReportPlace();
            return 0;
        case WM_MOVE:
            ReportPlace();
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) RememberFocus();
            break;
        case WM_SETFOCUS:
            FocusSomething();
            return 0;
        // Of the whole form, so that what is to be drawn or measured without a control is as its
        // texts are.
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(surroundings_.screen.Plain());
        case WM_SETCURSOR:
            if (const auto control = controls_.Find(reinterpret_cast<HWND>(wParam))) {
                control->PointerCame();
            }
            if (form_.ShownPointer() != toolkit::Hourglass || !IsInside(lParam)) break;
            SetCursor(LoadCursorW(nullptr, IDC_WAIT));
            return TRUE;
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
            controls_.Broadcast(message, wParam, lParam);
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
            break;
        case WM_CLOSE:
            // A modal form lets nothing happen to the windows behind it.
            if (IsWindowEnabled(window)) surroundings_.Guard([this] { form_.Unload(); });
            return 0;
        case WM_ENDSESSION:
            if (wParam && !form_.isDialog) surroundings_.Guard([this] { form_.Unload(); });
            return 0;
        case WM_DESTROY:
            // Its owner takes the window along.
            controls_.Detach();
            form_.SetView(nullptr);
            name_.reset();
            window_ = nullptr;
            break;
        default:
            break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void FormWindow::Command(int id, UINT code, HWND control) {
    if (const auto sender = controls_.Find(control)) {
        sender->Notified(code);
    } else if (id == IDOK) {
        PressDefault();
    } else if (id == IDCANCEL) {
        Press(form_.cancelButton);
    }
}

// The control's window stands in place of its number.
void FormWindow::AnswerTip(NMTTDISPINFOW& question) const {
    const auto control = controls_.Find(reinterpret_cast<HWND>(question.hdr.idFrom));
    if (control) surroundings_.Guard([&] { control->AnswerTip(question); });
}

void FormWindow::PressDefault() {
    const auto focused = controls_.Find(GetFocus());
    auto* button = focused ? dynamic_cast<toolkit::DrawnControl*>(&focused->Control()) : nullptr;
    Press(button ? button : form_.defaultButton);
}

void FormWindow::Press(toolkit::DrawnControl* button) {
    if (!button || !button->Enabled()) return;
    surroundings_.Guard([button] { button->Press(); });
}

// A minimised window has no place of its own; the form keeps the one that it had.
void FormWindow::ReportPlace() {
    if (placing_ || !form_.Visible()) return;
    const toolkit::WindowState state = StateOf(window_);
    toolkit::Bounds bounds = form_.Place();
    if (state != toolkit::WindowState::Minimised) {
        RECT area{};
        GetWindowRect(window_, &area);
        bounds = Measured(area, bounds, surroundings_.screen);
    }
    surroundings_.Guard([&] { form_.WindowMoved(state, bounds); });
}

void FormWindow::RememberFocus() {
    const HWND focus = GetFocus();
    if (!IsChild(window_, focus)) return;
    // A combo box gives the focus to the field inside it.
    lastFocus_ = controls_.Find(focus) ? focus : GetParent(focus);
}

void FormWindow::FocusSomething() {
    auto target = controls_.Find(lastFocus_);
    if (!target || !target->TakesFocus()) target = controls_.FirstToFocus();
    if (target) target->TakeFocus();
}

}  // namespace platform::win32
