#include "platform/win32/registry.h"

#include <windows.h>

#include <vector>

#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

// Key handles of a 32-bit process, the predefined ones among them, fit into 32 bits as they are.
static_assert(sizeof(HKEY) == sizeof(platform::Registry::Key));

HKEY Native(platform::Registry::Key key) {
    return reinterpret_cast<HKEY>(key);
}

platform::Registry::Key Portable(HKEY key) {
    return reinterpret_cast<platform::Registry::Key>(key);
}

}  // namespace

Registry::Result Registry::Open(Key parent, std::string_view path, std::uint32_t access,
                                Key& opened) {
    HKEY key = nullptr;
    const Result result = RegOpenKeyExA(Native(parent), ToAnsi(path).c_str(), 0, access, &key);
    opened = Portable(key);
    return result;
}

Registry::Result Registry::Create(Key parent, std::string_view name, std::uint32_t access,
                                  Key& created) {
    HKEY key = nullptr;
    SECURITY_ATTRIBUTES noInheritance = {};
    char keyClass[] = "";
    const Result result =
        RegCreateKeyExA(Native(parent), ToAnsi(name).c_str(), 0, keyClass, REG_OPTION_NON_VOLATILE,
                        access, &noInheritance, &key, nullptr);
    created = Portable(key);
    return result;
}

Registry::Result Registry::Query(Key key, std::string_view valueName, std::uint32_t& type,
                                 std::uint8_t* data, std::uint32_t& size) {
    DWORD nativeType = REG_NONE;
    DWORD nativeSize = size;
    const Result result = RegQueryValueExA(Native(key), ToAnsi(valueName).c_str(), nullptr,
                                           &nativeType, data, &nativeSize);
    type = nativeType;
    size = nativeSize;
    return result;
}

Registry::Result Registry::Set(Key key, std::string_view valueName, std::uint32_t type,
                               const std::uint8_t* data, std::uint32_t size) {
    // The system looks at the byte behind an unterminated text, and when it is NUL it stores that
    // one too. So the data get a neighbour that is none.
    std::vector<std::uint8_t> guarded(data, data + size);
    guarded.push_back(0xFF);
    return RegSetValueExA(Native(key), ToAnsi(valueName).c_str(), 0, type, guarded.data(), size);
}

Registry::Result Registry::RemoveValue(Key key, std::string_view valueName) {
    return RegDeleteValueA(Native(key), ToAnsi(valueName).c_str());
}

Registry::Result Registry::RemoveKey(Key parent, std::string_view path) {
    return RegDeleteKeyA(Native(parent), ToAnsi(path).c_str());
}

Registry::Result Registry::EnumerateKey(Key key, std::uint32_t index, std::string& name) {
    char buffer[EnumerationRoom];
    const Result result = RegEnumKeyA(Native(key), index, buffer, sizeof buffer);
    if (result == Success) name = FromAnsi(buffer);
    return result;
}

Registry::Result Registry::LongestValueName(Key key, std::uint32_t& length) {
    DWORD longest = 0;
    const Result result = RegQueryInfoKeyA(Native(key), nullptr, nullptr, nullptr, nullptr, nullptr,
                                           nullptr, nullptr, &longest, nullptr, nullptr, nullptr);
    length = longest;
    return result;
}

Registry::Result Registry::EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                                          std::string& name) {
    std::string buffer(room, '\0');
    DWORD length = room;
    const Result result = RegEnumValueA(Native(key), index, buffer.data(), &length, nullptr,
                                        nullptr, nullptr, nullptr);
    if (result == Success) name = FromAnsi({buffer.data(), length});
    return result;
}

Registry::Result Registry::Close(Key key) {
    return RegCloseKey(Native(key));
}

}  // namespace platform::win32
