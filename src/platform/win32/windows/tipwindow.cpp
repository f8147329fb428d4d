#include "platform/win32/windows/tipwindow.h"

#include "platform/win32/text.h"

namespace platform::win32 {

void TipWindow::Offer(HWND control) {
    if (window_) return;
    window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                  TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, control, nullptr,
                                  GetModuleHandleW(nullptr), nullptr));
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(window_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void TipWindow::Answer(NMTTDISPINFOW& question, const std::string& text) {
    text_ = ToWide(text);
    question.lpszText = text_.data();
}

}  // namespace platform::win32
