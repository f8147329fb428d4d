#include "platform/win32/text.h"

#include <windows.h>

namespace platform::win32 {
namespace {

// No code page makes more characters than there are bytes.
std::wstring Widen(UINT codePage, std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    std::wstring wide(bytes.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, bytes.data(), length, wide.data(), length)));
    return wide;
}

std::string Narrow(UINT codePage, std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    // Most texts are short, and asking for the length takes as long as converting them.
    constexpr std::size_t BytesOfCharacter = 3;
    char room[256];
    if (wide.size() <= sizeof room / BytesOfCharacter) {
        return {room, static_cast<std::size_t>(WideCharToMultiByte(
                          codePage, 0, wide.data(), length, room, sizeof room, nullptr, nullptr))};
    }
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
