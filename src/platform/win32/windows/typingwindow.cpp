#include "platform/win32/windows/typingwindow.h"

namespace platform::win32 {

// An edit field is told its clipboard commands as the control characters of A, C, V, X and Z.
bool TypingWindow::IsCommand(WPARAM character) const {
    constexpr WPARAM offset = 'A' - 1;
    switch (character + offset) {
        case 'A':
        case 'C':
        case 'V':
        case 'X':
        case 'Z':
            return true;
        default:
            return false;
    }
}

void TypingWindow::WatchTyping(HWND field, const toolkit::KeyHandler& onKeyPress) {
    field_.Watch(field, [this, &onKeyPress](HookedMessage& hooked) {
        // A field of several lines tells nobody of a text that a script sets.
        const bool tellsNobody = GetWindowLongW(hooked.window, GWL_STYLE) & ES_MULTILINE;
        if (hooked.message == WM_SETTEXT && tellsNobody) {
            const auto alive = shared_from_this();
            const LRESULT result = hooked.Pass();
            if (Window()) Notified(EN_CHANGE);
            return result;
        }
        if (hooked.message != WM_CHAR || IsCommand(hooked.wParam)) return hooked.Pass();
        const auto alive = shared_from_this();
        auto character = static_cast<char16_t>(hooked.wParam);
        Guard([&] {
            if (onKeyPress) onKeyPress(character);
        });
        hooked.wParam = character;
        return character && Window() ? hooked.Pass() : 0;
    });
}

void TypingWindow::Detach() {
    field_.Leave();
    ControlWindow::Detach();
}

}  // namespace platform::win32
