#include "platform/win32/windows/drivelistboxwindow.h"

namespace platform::win32 {

void DriveListBoxWindow::Prepare() {
    ComboBoxWindow::Prepare();
    list_.Watch(List(), [this](HookedMessage& hooked) {
        const auto alive = shared_from_this();
        const LRESULT result = hooked.Pass();
        const bool scrolls = hooked.message == WM_VSCROLL || hooked.message == WM_MOUSEWHEEL;
        if (scrolls && Window()) Guard([this] { control_.ScrollList(); });
        return result;
    });
}

void DriveListBoxWindow::Detach() {
    list_.Leave();
    ComboBoxWindow::Detach();
}

}  // namespace platform::win32
