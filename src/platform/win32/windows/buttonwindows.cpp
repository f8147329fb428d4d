#include "platform/win32/windows/buttonwindows.h"

#include "runtime/temporarily.h"
#include "toolkit/form.h"

namespace platform::win32 {
namespace {

bool ArrowIsDown() {
    return GetKeyState(VK_LEFT) < 0 || GetKeyState(VK_UP) < 0 || GetKeyState(VK_RIGHT) < 0 ||
           GetKeyState(VK_DOWN) < 0;
}

}  // namespace

// The native box never changes by itself: it shows what the control holds, also when an event has
// refused the click or failed.
ControlWindow::Recipe CheckBoxWindow::Describe() const {
    return {L"BUTTON", BS_CHECKBOX};
}

void CheckBoxWindow::ShowValue() {
    Send(BM_SETCHECK, control_.Value() == 1 ? BST_CHECKED : BST_UNCHECKED);
}

// A script's click reaches a disabled button too; a user's cannot.
void CheckBoxWindow::Notified(UINT code) {
    if (code != BN_CLICKED || !control_.Enabled()) return;
    Guard([this] { control_.Toggle(); });
}

ControlWindow::Recipe OptionButtonWindow::Describe() const {
    return {L"BUTTON", BS_AUTORADIOBUTTON};
}

void OptionButtonWindow::Prepare() {
    focus_.Watch(Window(), [this](HookedMessage& hooked) {
        const auto alive = shared_from_this();
        const runtime::Temporarily comes(focusComes_, hooked.message == WM_SETFOCUS);
        return hooked.Pass();
    });
}

void OptionButtonWindow::Detach() {
    focus_.Leave();
    ControlWindow::Detach();
}

template <typename Action>
void OptionButtonWindow::ForGroup(Action action) const {
    for (const auto& control : control_.Owner().Controls()) {
        auto* member = dynamic_cast<toolkit::OptionButton*>(control.get());
        if (!member || member->Group() != control_.Group()) continue;
        if (auto* window = dynamic_cast<OptionButtonWindow*>(member->View())) action(*window);
    }
}

// The tabulator reaches one button of the group: the selected one, or the first when none is.
void OptionButtonWindow::ShowValue() {
    Send(BM_SETCHECK, control_.Value() ? BST_CHECKED : BST_UNCHECKED);
    const OptionButtonWindow* stop = nullptr;
    ForGroup([&](const OptionButtonWindow& member) {
        if (!stop || member.control_.Value()) stop = &member;
    });
    ForGroup([&](const OptionButtonWindow& member) {
        const LONG style = GetWindowLongW(member.Window(), GWL_STYLE) & ~WS_TABSTOP;
        SetWindowLongW(member.Window(), GWL_STYLE, &member == stop ? style | WS_TABSTOP : style);
    });
}

// The system tells the arrival of the focus as a click too. With the arrow keys that may be the
// choice itself, but walking past with the tabulator must not choose, nor coming back to the
// window.
void OptionButtonWindow::Notified(UINT code) {
    if (code != BN_CLICKED && code != BN_DOUBLECLICKED) return;
    const bool chosen = control_.Enabled() && (!focusComes_ || ArrowIsDown());
    if (chosen) Guard([this] { control_.SetValue(true); });
    if (Window()) ForGroup([](OptionButtonWindow& member) { member.ShowValue(); });
}

// Transparent, so that the form paints the frame's inside although it spares its children.
ControlWindow::Recipe FrameWindow::Describe() const {
    return {L"BUTTON", BS_GROUPBOX, WS_EX_TRANSPARENT};
}

// A group box takes a press for that of a button, and the focus along with it.
LRESULT FrameWindow::Hear(const HookedMessage& hooked) {
    if (hooked.message == WM_MOUSEMOVE) Guard([this] { control_.MouseMoved(); });
    const bool isMouse = hooked.message >= WM_MOUSEFIRST && hooked.message <= WM_MOUSELAST;
    return isMouse ? 0 : hooked.Pass();
}

}  // namespace platform::win32
