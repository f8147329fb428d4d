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
    // Of no characters not every system tells the height of the font.
    const std::wstring measured = seen.empty() ? L"0" : seen;
    SIZE size{};
    GetTextExtentPoint32W(dc, measured.c_str(), static_cast<int>(measured.size()), &size);
    return {seen.empty() ? 0 : static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

}  // namespace platform::win32
