#include "platform/win32/text.h"

#include <windows.h>

namespace platform::win32 {

namespace {

std::wstring Widen(UINT codePage, std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<std::size_t>(
                          MultiByteToWideChar(codePage, 0, bytes.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), length, wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(UINT codePage, std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, wide.data(), length,
                                                                   nullptr, 0, nullptr, nullptr)),
                      '\0');
    WideCharToMultiByte(codePage, 0, wide.data(), length, bytes.data(),
                        static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes;
}

}  // namespace

std::wstring ToWide(std::string_view text) {
    return Widen(CP_UTF8, text);
}

std::string FromWide(std::wstring_view text) {
    return Narrow(CP_UTF8, text);
}

std::string ToAnsi(std::string_view text) {
    return Narrow(CP_ACP, ToWide(text));
}

std::string FromAnsi(std::string_view bytes) {
    return FromWide(Widen(CP_ACP, bytes));
}

}  // namespace platform::win32
