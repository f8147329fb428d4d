#include "platform/win32/windows/tipwindow.h"

#include <commctrl.h>

#include "platform/win32/text.h"

namespace platform::win32 {

void TipWindow::Show(HWND control, const std::string& text) {
    if (text.empty()) return Leave();
    const bool isFirst = !window_;
    if (isFirst) {
        window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, control, nullptr,
                                      GetModuleHandleW(nullptr), nullptr));
    }
    std::wstring wide = ToWide(text);
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = control;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = wide.data();
    SendMessageW(window_.Get(), isFirst ? TTM_ADDTOOLW : TTM_UPDATETIPTEXTW, 0,
                 reinterpret_cast<LPARAM>(&tool));
}

}  // namespace platform::win32
