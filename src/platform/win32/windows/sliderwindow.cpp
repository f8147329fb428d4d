#include "platform/win32/windows/sliderwindow.h"

#include <windows.h>

#include <commctrl.h>

namespace platform::win32 {

ControlWindow::Recipe SliderWindow::Describe() const {
    return {TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS};
}

void SliderWindow::Prepare() {
    const toolkit::SliderRange& range = control_.Range();
    Send(TBM_SETRANGEMIN, FALSE, range.minimum);
    Send(TBM_SETRANGEMAX, FALSE, range.maximum);
    Send(TBM_SETLINESIZE, 0, range.smallStep);
    Send(TBM_SETPAGESIZE, 0, range.largeStep);
    Send(TBM_SETTICFREQ, static_cast<WPARAM>(range.tick));
}

void SliderWindow::ShowValue() {
    if (Send(TBM_GETPOS) != control_.Value()) Send(TBM_SETPOS, TRUE, control_.Value());
}

void SliderWindow::Notified(UINT) {
    Guard([this] { control_.SetValue(static_cast<std::int32_t>(Send(TBM_GETPOS))); });
    if (Window()) ShowValue();
}

}  // namespace platform::win32
