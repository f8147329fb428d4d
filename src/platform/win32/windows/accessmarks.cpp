#include "platform/win32/windows/accessmarks.h"

#include "platform/win32/text.h"

namespace platform::win32 {

std::wstring WithoutAccessMarks(std::string_view caption) {
    std::wstring seen;
    bool marked = false;
    for (const wchar_t character : ToWide(caption)) {
        marked = character == L'&' && !marked;
        if (!marked) seen += character;
    }
    return seen;
}

toolkit::Size ExtentOf(HDC dc, std::string_view caption) {
    const std::wstring seen = WithoutAccessMarks(caption);
    SIZE size{};
    GetTextExtentPoint32W(dc, seen.c_str(), static_cast<int>(seen.size()), &size);
    return {size.cx, size.cy};
}

}  // namespace platform::win32
