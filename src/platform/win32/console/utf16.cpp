#include "platform/win32/console/utf16.h"

#include <cstring>

#include "runtime/encoding.h"

namespace platform::win32 {

static_assert(sizeof(wchar_t) == 2);

std::wstring ToUnits(std::string_view text) {
    const std::string bytes = runtime::ToUtf16(text);
    std::wstring units(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(units.data(), bytes.data(), bytes.size());
    return units;
}

std::string FromUnits(std::wstring_view units) {
    return runtime::FromUtf16(
        {reinterpret_cast<const char*>(units.data()), units.size() * sizeof(wchar_t)});
}

}  // namespace platform::win32
