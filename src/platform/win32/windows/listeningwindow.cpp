#include "platform/win32/windows/listeningwindow.h"

namespace platform::win32 {

void ListeningWindow::Prepare() {
    if (!IsHeard()) return;
    hook_.Watch(Window(), [this](HookedMessage& hooked) -> LRESULT {
        if (hooked.message == WM_NCHITTEST) return HTCLIENT;
        const auto alive = shared_from_this();
        return Hear(hooked);
    });
}

void ListeningWindow::Detach() {
    hook_.Leave();
    ControlWindow::Detach();
}

}  // namespace platform::win32
