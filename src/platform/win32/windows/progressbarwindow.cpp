#include "platform/win32/windows/progressbarwindow.h"

#include <windows.h>

#include <commctrl.h>

namespace platform::win32 {

ControlWindow::Recipe ProgressBarWindow::Describe() const {
    return {PROGRESS_CLASSW, 0};
}

void ProgressBarWindow::Prepare() {
    Send(PBM_SETRANGE32, static_cast<WPARAM>(control_.Minimum()), control_.Maximum());
}

void ProgressBarWindow::ShowValue() {
    Send(PBM_SETPOS, static_cast<WPARAM>(control_.Value()));
}

}  // namespace platform::win32
