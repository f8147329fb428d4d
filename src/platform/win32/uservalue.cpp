#include "platform/win32/uservalue.h"

#include <windows.h>

#include "platform/win32/handle.h"

namespace platform::win32 {
namespace {

RegistryKey OpenUserKey(const std::wstring& path, REGSAM access) {
    RegistryKey key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, key.Out()) != ERROR_SUCCESS) {
        return {};
    }
    return key;
}

}  // namespace

std::optional<std::wstring> ReadUserText(const std::wstring& path, const std::wstring& name) {
    const RegistryKey key = OpenUserKey(path, KEY_QUERY_VALUE);
    if (!key) return std::nullopt;

    std::wstring text(64, L'\0');
    DWORD type = REG_NONE;
    DWORD size = 0;
    LONG result = ERROR_MORE_DATA;
    while (result == ERROR_MORE_DATA) {
        size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        result = RegQueryValueExW(key.Get(), name.c_str(), nullptr, &type,
                                  reinterpret_cast<BYTE*>(text.data()), &size);
        if (result == ERROR_MORE_DATA) text.resize(size / sizeof(wchar_t) + 1);
    }
    if (result != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) return std::nullopt;
    text.resize(size / sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
}

bool WriteUserText(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
    RegistryKey key;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_SET_VALUE, nullptr, key.Out(), nullptr) != ERROR_SUCCESS) {
        return false;
    }
    return RegSetValueExW(key.Get(), name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool RemoveUserValue(const std::wstring& path, const std::wstring& name) {
    const RegistryKey key = OpenUserKey(path, KEY_SET_VALUE);
    return key && RegDeleteValueW(key.Get(), name.c_str()) == ERROR_SUCCESS;
}

bool RemoveUserKey(const std::wstring& path) {
    const LONG result = RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
    return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
}

}  // namespace platform::win32
