#include "endtoend/files.h"

#include <windows.h>

#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {

using platform::win32::FromWide;
using platform::win32::ToWide;

std::string ReadFile(const std::string& path) {
    const platform::win32::FileHandle file(CreateFileW(ToWide(path).c_str(), GENERIC_READ,
                                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                       OPEN_EXISTING, 0, nullptr));
    if (!file) return "";
    std::string bytes(GetFileSize(file.Get(), nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    bytes.resize(read);
    return bytes;
}

std::string OwnFolder() {
    wchar_t path[MAX_PATH];
    const std::string own = FromWide({path, GetModuleFileNameW(nullptr, path, MAX_PATH)});
    return own.substr(0, own.find_last_of('\\'));
}

}  // namespace endtoend
