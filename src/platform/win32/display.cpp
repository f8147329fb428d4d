#include "platform/win32/display.h"

#include <windows.h>

#include <shlwapi.h>

#include <algorithm>

#include "platform/win32/formhandles.h"
#include "platform/win32/text.h"

namespace platform::win32 {

toolkit::Size Display::Size() const {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

std::string Display::CompactPath(const toolkit::Form& form, std::string_view path,
                                 int width) const {
    const HWND window = forms_.WindowOf(form);
    const HDC context = GetDC(window);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0));
    const HGDIOBJ before = font ? SelectObject(context, font) : nullptr;
    // The call counts on room for the longest path.
    std::string buffer = ToAnsi(path);
    const std::size_t length = buffer.size();
    buffer.resize(std::max<std::size_t>(length, MAX_PATH) + 1);
    PathCompactPathA(context, buffer.data(), static_cast<UINT>(width));
    if (before) SelectObject(context, before);
    ReleaseDC(window, context);
    buffer.resize(length);
    return FromAnsi(buffer);
}

}  // namespace platform::win32
