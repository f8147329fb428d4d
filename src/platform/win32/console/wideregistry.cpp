#include "platform/win32/console/wideregistry.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/console/utf16.h"
#include "platform/win32/handle.h"

namespace platform::win32 {
namespace {

using Result = WideRegistry::Result;

static_assert(sizeof(HKEY) == sizeof(WideRegistry::Root));

HKEY Native(WideRegistry::Root root) {
    return reinterpret_cast<HKEY>(root);
}

// A name as the system takes it, ended by a NUL. It holds lengths in 16 bits and cuts or wraps what
// is longer, and at a NUL inside it would stop: each would be the name of something else.
class Name {
  public:
    explicit Name(std::string_view text) : units_(ToUnits(text)) {}

    bool Usable() const {
        constexpr std::size_t longest = 0x7FFF - 1;
        return units_.size() <= longest && units_.find(L'\0') == std::wstring::npos;
    }
    const wchar_t* Text() const { return units_.c_str(); }

  private:
    std::wstring units_;
};

Result OpenKey(WideRegistry::Root root, const Name& path, REGSAM access, RegistryKey& key) {
    if (!path.Usable()) return ERROR_INVALID_PARAMETER;
    return RegOpenKeyExW(Native(root), path.Text(), 0, access, key.Out());
}

// The names that `ask` gives for 0, 1 and so on, each no longer than that.
template <typename Ask>
Result Enumerate(std::size_t longest, std::vector<std::string>& names, Ask&& ask) {
    std::wstring room(longest + 1, L'\0');
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(room.size());
        const LONG result = ask(index, room.data(), &length);
        if (result == ERROR_NO_MORE_ITEMS) return ERROR_SUCCESS;
        if (result != ERROR_SUCCESS) return result;
        names.push_back(FromUnits({room.data(), length}));
    }
}

}  // namespace

Result WideRegistry::Ask(Root root, std::string_view path) {
    RegistryKey key;
    return OpenKey(root, Name(path), KEY_QUERY_VALUE, key);
}

Result WideRegistry::KeyNames(Root root, std::string_view path, std::vector<std::string>& names) {
    RegistryKey key;
    const Result result = OpenKey(root, Name(path), KEY_ENUMERATE_SUB_KEYS, key);
    if (result != ERROR_SUCCESS) return result;
    return Enumerate(Registry::LongestKeyName, names,
                     [&](DWORD index, wchar_t* name, DWORD* length) {
                         return RegEnumKeyExW(key.Get(), index, name, length, nullptr, nullptr,
                                              nullptr, nullptr);
                     });
}

Result WideRegistry::ValueNames(Root root, std::string_view path, std::vector<std::string>& names) {
    RegistryKey key;
    const Result result = OpenKey(root, Name(path), KEY_QUERY_VALUE, key);
    if (result != ERROR_SUCCESS) return result;
    return Enumerate(Registry::ValueNameLimit, names,
                     [&](DWORD index, wchar_t* name, DWORD* length) {
                         return RegEnumValueW(key.Get(), index, name, length, nullptr, nullptr,
                                              nullptr, nullptr);
                     });
}

Result WideRegistry::Read(Root root, std::string_view path, std::string_view name, Value& value) {
    const Name valueName(name);
    if (!valueName.Usable()) return ERROR_INVALID_PARAMETER;
    RegistryKey key;
    Result result = OpenKey(root, Name(path), KEY_QUERY_VALUE, key);
    if (result != ERROR_SUCCESS) return result;
    // Most values fit in here. One that does not may have grown again when it is asked for anew.
    std::vector<std::uint8_t> bytes(256);
    DWORD type = REG_NONE;
    for (;;) {
        auto size = static_cast<DWORD>(bytes.size());
        result = RegQueryValueExW(key.Get(), valueName.Text(), nullptr, &type, bytes.data(), &size);
        if (result != ERROR_MORE_DATA) {
            bytes.resize(size);
            break;
        }
        bytes.resize(std::max<std::size_t>(size, 2 * bytes.size()));
    }
    if (result != ERROR_SUCCESS) return result;
    value = {type, bytes};
    return result;
}

Result WideRegistry::Write(Root root, std::string_view path, std::string_view name,
                           const Value& value) {
    const Name valueName(name);
    if (!valueName.Usable()) return ERROR_INVALID_PARAMETER;
    RegistryKey key;
    const Result result = OpenKey(root, Name(path), KEY_SET_VALUE, key);
    if (result != ERROR_SUCCESS) return result;
    // The system looks at the character behind an unterminated text, and when it is NUL it stores
    // that one too; of a text of one byte it also looks at the character before. So the data get
    // neighbours that are none.
    constexpr std::size_t before = sizeof(wchar_t);
    std::vector<std::uint8_t> guarded(before, 0xFF);
    guarded.insert(guarded.end(), value.bytes.begin(), value.bytes.end());
    guarded.insert(guarded.end(), sizeof(wchar_t), 0xFF);
    return RegSetValueExW(key.Get(), valueName.Text(), 0, value.type, guarded.data() + before,
                          static_cast<DWORD>(value.bytes.size()));
}

Result WideRegistry::RemoveValue(Root root, std::string_view path, std::string_view name) {
    const Name valueName(name);
    if (!valueName.Usable()) return ERROR_INVALID_PARAMETER;
    RegistryKey key;
    const Result result = OpenKey(root, Name(path), KEY_SET_VALUE, key);
    if (result != ERROR_SUCCESS) return result;
    return RegDeleteValueW(key.Get(), valueName.Text());
}

Result WideRegistry::Create(Root root, std::string_view path) {
    const Name name(path);
    if (!name.Usable()) return ERROR_INVALID_PARAMETER;
    RegistryKey key;
    return RegCreateKeyExW(Native(root), name.Text(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_QUERY_VALUE, nullptr, key.Out(), nullptr);
}

Result WideRegistry::RemoveKey(Root root, std::string_view path) {
    if (path.empty()) return ERROR_ACCESS_DENIED;
    const Name name(path);
    {
        RegistryKey key;
        const Result result = OpenKey(root, name, KEY_ENUMERATE_SUB_KEYS, key);
        if (result != ERROR_SUCCESS) return result;
        wchar_t first[Registry::LongestKeyName + 1];
        DWORD length = sizeof first / sizeof first[0];
        const LONG found =
            RegEnumKeyExW(key.Get(), 0, first, &length, nullptr, nullptr, nullptr, nullptr);
        if (found == ERROR_SUCCESS) return ERROR_ACCESS_DENIED;
        if (found != ERROR_NO_MORE_ITEMS) return found;
    }
    return RegDeleteKeyW(Native(root), name.Text());
}

}  // namespace platform::win32
