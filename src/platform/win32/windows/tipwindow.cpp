#include "platform/win32/windows/tipwindow.h"

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

TTTOOLINFOW ToolOf(HWND control) {
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    return tool;
}

}  // namespace

void TipWindow::Offer(HWND control) {
    if (window_) return;
    window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                  TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, control, nullptr,
                                  GetModuleHandleW(nullptr), nullptr));
    TTTOOLINFOW tool = ToolOf(control);
    SendMessageW(window_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void TipWindow::ShowChange(HWND control) {
    if (!window_ || !IsWindowVisible(window_.Get())) return;
    TTTOOLINFOW tool = ToolOf(control);
    SendMessageW(window_.Get(), TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void TipWindow::Answer(NMTTDISPINFOW& question, const std::string& text) {
    text_ = ToWide(text);
    question.lpszText = text_.data();
}

}  // namespace platform::win32
