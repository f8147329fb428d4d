#include "platform/win32/tooltips.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

static_assert(TipTool::RecordSize == offsetof(TTTOOLINFOA, lParam));

HWND HwndOf(ToolTips::Handle handle) {
    return reinterpret_cast<HWND>(handle);
}

BYTE Flag(bool on) {
    return on ? 1 : 0;
}

}  // namespace

void ToolTips::InitControls() {
    using Function = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);
    const auto init = reinterpret_cast<Function>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"comctl32.dll"), "InitCommonControlsEx")));
    if (!init) return InitCommonControls();
    const INITCOMMONCONTROLSEX wanted = {sizeof wanted, ICC_WIN95_CLASSES};
    init(&wanted);
}

ToolTips::Handle ToolTips::Create(std::uint32_t extendedStyle, std::uint32_t style) {
    return reinterpret_cast<Handle>(CreateWindowExA(
        extendedStyle, TOOLTIPS_CLASSA, nullptr, style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
        CW_USEDEFAULT, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
}

void ToolTips::Destroy(Handle window) {
    DestroyWindow(HwndOf(window));
}

std::uint32_t ToolTips::WindowStyle(Handle window) const {
    return static_cast<std::uint32_t>(GetWindowLongA(HwndOf(window), GWL_STYLE));
}

void ToolTips::SetWindowStyle(Handle window, std::uint32_t style) {
    SetWindowLongA(HwndOf(window), GWL_STYLE, static_cast<LONG>(style));
}

void ToolTips::Send(Handle window, std::uint32_t message, std::uintptr_t wParam,
                    std::uintptr_t lParam) {
    SendMessageA(HwndOf(window), message, wParam, static_cast<LPARAM>(lParam));
}

void ToolTips::SendTool(Handle window, std::uint32_t message, TipTool& tool, const char* text) {
    std::string ansi = text ? ToAnsi(text) : "";
    TTTOOLINFOA record = {};
    record.cbSize = tool.cbSize;
    record.uFlags = tool.uFlags;
    record.hwnd = HwndOf(tool.hwnd);
    record.uId = tool.uId;
    record.rect = {tool.left, tool.top, tool.right, tool.bottom};
    record.lpszText = text ? ansi.data() : nullptr;
    SendMessageA(HwndOf(window), message, 0, reinterpret_cast<LPARAM>(&record));
    tool.uFlags = record.uFlags;
    tool.left = record.rect.left;
    tool.top = record.rect.top;
    tool.right = record.rect.right;
    tool.bottom = record.rect.bottom;
    // Over a combo box the mouse is mostly in the field inside, which needs a tool of its own.
    const bool concernsField = message == TTM_ADDTOOLA || message == TTM_DELTOOLA;
    if (!concernsField || !(tool.uFlags & TTF_IDISHWND) || !record.hwnd) return;
    if (const HWND field = FindWindowExA(record.hwnd, nullptr, WC_EDITA, nullptr)) {
        record.hwnd = field;
        record.uId = reinterpret_cast<UINT_PTR>(field);
        SendMessageA(HwndOf(window), message, 0, reinterpret_cast<LPARAM>(&record));
    }
}

std::int32_t ToolTips::VerticalResolution() const {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

ToolTips::Handle ToolTips::MakeFont(std::int32_t height, const TipFont& font) {
    LOGFONTA record = {};
    record.lfHeight = height;
    record.lfWeight = font.weight;
    record.lfItalic = Flag(font.italic);
    record.lfUnderline = Flag(font.underline);
    record.lfStrikeOut = Flag(font.strikethrough);
    // The field's last character stays its terminator.
    ToAnsi(font.name).copy(record.lfFaceName, LF_FACESIZE - 1);
    return reinterpret_cast<Handle>(CreateFontIndirectA(&record));
}

void ToolTips::DeleteFont(Handle font) {
    DeleteObject(reinterpret_cast<HGDIOBJ>(font));
}

}  // namespace platform::win32
