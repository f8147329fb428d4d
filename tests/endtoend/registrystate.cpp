#include "endtoend/registrystate.h"

#include <windows.h>

#include "endtoend/waiting.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::RegistryKey;
using platform::win32::ToWide;

RegistryKey Open(const std::string& root, const std::string& key, REGSAM access) {
    RegistryKey opened;
    RegOpenKeyExW(RootOf(root), ToWide(key).c_str(), 0, access, opened.Out());
    return opened;
}

RegistryKey Create(const std::string& root, const std::string& key) {
    RegistryKey made;
    if (RegCreateKeyExW(RootOf(root), ToWide(key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                        made.Out(), nullptr)) {
        throw Failed("cannot create the key " + key);
    }
    return made;
}

std::string Bytes(std::wstring_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

std::string LowerCaseOf(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return FromWide(text);
}

void ReadValues(HKEY key, const std::string& path, RegistryState& state) {
    std::wstring name(16384, L'\0');
    std::string bytes(65536, '\0');
    for (DWORD at = 0;; ++at) {
        auto nameSize = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(bytes.size());
        DWORD type = 0;
        const LSTATUS result = RegEnumValueW(key, at, name.data(), &nameSize, nullptr, &type,
                                             reinterpret_cast<BYTE*>(bytes.data()), &size);
        if (result == ERROR_MORE_DATA) {
            bytes.resize(bytes.size() * 4);
            --at;
            continue;
        }
        if (result != ERROR_SUCCESS) return;
        state[path + '|' + LowerCaseOf(name.substr(0, nameSize))] =
            RegistryValue{type, bytes.substr(0, size)};
    }
}

void ReadTree(HKEY parent, const std::wstring& child, const std::string& path,
              RegistryState& state) {
    RegistryKey key;
    RegOpenKeyExW(parent, child.c_str(), 0, KEY_READ, key.Out());
    if (!key) return;
    state[path] = std::nullopt;
    ReadValues(key.Get(), path, state);
    wchar_t name[256];
    for (DWORD at = 0;; ++at) {
        DWORD size = 256;
        if (RegEnumKeyExW(key.Get(), at, name, &size, nullptr, nullptr, nullptr, nullptr)) return;
        const std::wstring below(name, size);
        ReadTree(key.Get(), below, path + '\\' + LowerCaseOf(below), state);
    }
}

void DeleteTreeBelow(HKEY parent, const std::wstring& child) {
    {
        RegistryKey key;
        RegOpenKeyExW(parent, child.c_str(), 0, KEY_ALL_ACCESS, key.Out());
        if (!key) return;
        wchar_t name[256];
        DWORD size = 256;
        while (!RegEnumKeyExW(key.Get(), 0, name, &size, nullptr, nullptr, nullptr, nullptr)) {
            DeleteTreeBelow(key.Get(), name);
            size = 256;
        }
    }
    if (RegDeleteKeyW(parent, child.c_str()) != ERROR_SUCCESS) {
        throw Failed("cannot delete the key " + FromWide(child));
    }
}

std::string Hex(const std::string& bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : bytes) {
        text += ' ';
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

std::string DescribeEntry(const RegistryState& state, RegistryState::const_iterator entry) {
    if (entry == state.end()) return "absent";
    return entry->second ? Describe(entry->second) : "a key";
}

}  // namespace

RegistryValue Dword(DWORD number) {
    return {REG_DWORD, std::string(reinterpret_cast<const char*>(&number), sizeof number)};
}

RegistryValue BareText(std::string_view text) {
    return {REG_SZ, Bytes(ToWide(text))};
}

RegistryValue TerminatedText(std::string_view text) {
    return {REG_SZ, Bytes(ToWide(text) + L'\0')};
}

RegistryValue Binary(std::string_view bytes) {
    return {REG_BINARY, std::string(bytes)};
}

std::string Describe(const std::optional<RegistryValue>& value) {
    if (!value) return "absent";
    if (value->type == REG_SZ && value->bytes.size() % 2 == 0) {
        const std::wstring text(reinterpret_cast<const wchar_t*>(value->bytes.data()),
                                value->bytes.size() / 2);
        return "text \"" + FromWide(text.c_str()) + "\" " + std::to_string(value->bytes.size()) +
               " bytes";
    }
    return "type " + std::to_string(value->type) + Hex(value->bytes);
}

HKEY RootOf(std::string_view name) {
    if (name == "HKCR" || name == "HKEY_CLASSES_ROOT") return HKEY_CLASSES_ROOT;
    if (name == "HKCU" || name == "HKEY_CURRENT_USER") return HKEY_CURRENT_USER;
    if (name == "HKLM" || name == "HKEY_LOCAL_MACHINE") return HKEY_LOCAL_MACHINE;
    throw Failed("no root key " + std::string(name));
}

std::optional<RegistryValue> ReadValue(const ValuePlace& place) {
    const RegistryKey key = Open(place.root, place.key, KEY_READ);
    if (!key) return std::nullopt;
    // A buffer of exactly the size leaves no room for a terminator that is not stored.
    DWORD type = 0;
    DWORD size = 0;
    const std::wstring name = ToWide(place.name);
    if (RegQueryValueExW(key.Get(), name.c_str(), nullptr, &type, nullptr, &size)) {
        return std::nullopt;
    }
    std::string bytes(size, '\0');
    if (RegQueryValueExW(key.Get(), name.c_str(), nullptr, &type,
                         reinterpret_cast<BYTE*>(bytes.data()), &size)) {
        return std::nullopt;
    }
    return RegistryValue{type, bytes};
}

void WriteValue(const ValuePlace& place, const RegistryValue& value) {
    const RegistryKey key = Create(place.root, place.key);
    // The call adds a terminator to a text by itself when it sees one behind the data.
    const std::string guarded = value.bytes + "\xFF\xFF";
    if (RegSetValueExW(key.Get(), ToWide(place.name).c_str(), 0, value.type,
                       reinterpret_cast<const BYTE*>(guarded.data()),
                       static_cast<DWORD>(value.bytes.size()))) {
        throw Failed("cannot write " + place.key + '|' + place.name);
    }
}

void DeleteValue(const ValuePlace& place) {
    const RegistryKey key = Open(place.root, place.key, KEY_SET_VALUE);
    if (key) RegDeleteValueW(key.Get(), ToWide(place.name).c_str());
}

bool KeyExists(const std::string& root, const std::string& key) {
    return static_cast<bool>(Open(root, key, KEY_READ));
}

void CreateKey(const std::string& root, const std::string& key) {
    Create(root, key);
}

void DeleteTree(const std::string& root, const std::string& key) {
    DeleteTreeBelow(RootOf(root), ToWide(key));
}

void DeleteEmptyKeys(const std::string& root, const std::string& key) {
    DWORD keys = 0;
    DWORD values = 0;
    {
        const RegistryKey opened = Open(root, key, KEY_READ);
        if (opened && (RegQueryInfoKeyW(opened.Get(), nullptr, nullptr, nullptr, &keys, nullptr,
                                        nullptr, &values, nullptr, nullptr, nullptr, nullptr) ||
                       keys || values)) {
            return;
        }
        if (opened) RegDeleteKeyW(RootOf(root), ToWide(key).c_str());
    }
    const std::size_t cut = key.find_last_of('\\');
    if (cut != std::string::npos) DeleteEmptyKeys(root, key.substr(0, cut));
}

RegistryState Snapshot(const std::vector<std::string>& keys) {
    RegistryState state;
    for (const std::string& path : keys) {
        const std::size_t cut = path.find('\\');
        const std::string below = cut == std::string::npos ? "" : path.substr(cut + 1);
        ReadTree(RootOf(path.substr(0, cut)), ToWide(below), LowerCaseOf(ToWide(path)), state);
    }
    return state;
}

std::vector<std::string> Differences(const RegistryState& before, const RegistryState& after) {
    RegistryState all = before;
    all.insert(after.begin(), after.end());
    std::vector<std::string> lines;
    for (const auto& [path, value] : all) {
        const auto was = before.find(path);
        const auto is = after.find(path);
        if (was != before.end() && is != after.end() && was->second == is->second) continue;
        lines.push_back(path + ": " + DescribeEntry(before, was) + " -> " +
                        DescribeEntry(after, is));
    }
    return lines;
}

}  // namespace endtoend
