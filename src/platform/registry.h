#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// The registry through the entry points of advapi32 that end in A. Key paths and value names cross
// the boundary in the system's ANSI code page; data are bytes as they stand. Each method is one
// call and returns the platform's own code: 0 is success.
class Registry {
  public:
    // A key handle; the predefined roots are 0x80000000 and up.
    using Key = std::uint32_t;
    using Result = std::int32_t;

    static constexpr Key ClassesRoot = 0x80000000u;
    static constexpr Key CurrentUser = 0x80000001u;
    static constexpr Key LocalMachine = 0x80000002u;

    static constexpr Result Success = 0;
    static constexpr Result FileNotFound = 2;
    static constexpr Result AccessDenied = 5;
    static constexpr Result InvalidHandle = 6;
    static constexpr Result InvalidParameter = 87;
    static constexpr Result BadPathName = 161;
    static constexpr Result MoreData = 234;
    static constexpr Result NoMoreItems = 259;
    // Through a handle to a key that somebody deleted.
    static constexpr Result KeyDeleted = 1018;

    // Value types.
    static constexpr std::uint32_t None = 0;
    static constexpr std::uint32_t String = 1;
    static constexpr std::uint32_t ExpandString = 2;
    static constexpr std::uint32_t Binary = 3;
    static constexpr std::uint32_t Dword = 4;
    static constexpr std::uint32_t BigEndianDword = 5;
    static constexpr std::uint32_t MultiString = 7;

    // Access rights.
    static constexpr std::uint32_t MayQueryValue = 0x01;
    static constexpr std::uint32_t MaySetValue = 0x02;
    static constexpr std::uint32_t MayCreateSubKey = 0x04;
    static constexpr std::uint32_t MayEnumerateSubKeys = 0x08;
    static constexpr std::uint32_t MayDoAll = 0x3F;

    // Limits of the platform, names in characters of the code page.
    static constexpr std::size_t LongestKeyName = 255;
    static constexpr std::size_t ValueNameLimit = 16383;
    static constexpr int DeepestKey = 512;
    // The buffer for the names of keys, the NUL included.
    static constexpr std::size_t EnumerationRoom = 255;

    static constexpr bool IsRoot(Key key) { return key >= ClassesRoot && key <= LocalMachine; }

    virtual ~Registry() = default;

    // RegOpenKeyExA. An empty path gives a fresh handle to `parent` itself. A leading backslash is
    // refused, a trailing one is passed over.
    virtual Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) = 0;

    // RegCreateKeyExA: a key that lasts, class "", no inheritance of the handle. Opens the key when
    // it is there already.
    virtual Result Create(Key parent, std::string_view name, std::uint32_t access,
                          Key& created) = 0;

    // RegQueryValueExA. `size` holds the size of the buffer and gets the size of the data; texts
    // come in the ANSI code page. With `data` nullptr only type and size are asked. A buffer that
    // is too small gives MoreData and the size needed; its content is then undefined.
    virtual Result Query(Key key, std::string_view valueName, std::uint32_t& type,
                         std::uint8_t* data, std::uint32_t& size) = 0;

    // RegSetValueExA. Stores exactly `size` bytes' worth of data: no terminator is added to a text.
    virtual Result Set(Key key, std::string_view valueName, std::uint32_t type,
                       const std::uint8_t* data, std::uint32_t size) = 0;

    // RegDeleteValueA.
    virtual Result RemoveValue(Key key, std::string_view valueName) = 0;

    // RegDeleteKeyA. A key with sub-keys stays and gives AccessDenied.
    virtual Result RemoveKey(Key parent, std::string_view path) = 0;

    // RegEnumKeyA in a buffer of EnumerationRoom: the sub-key of that index, counted from 0.
    // NoMoreItems behind the last one. A name of 255 characters, the longest that there is, leaves
    // no room for its NUL and gives MoreData.
    virtual Result EnumerateKey(Key key, std::uint32_t index, std::string& name) = 0;

    // RegQueryInfoKeyA, asked for one thing only: the length of the longest name among the key's
    // values, without a NUL.
    virtual Result LongestValueName(Key key, std::uint32_t& length) = 0;

    // RegEnumValueA, asked for the name only: the value of that index, counted from 0. `room` is
    // the size of the buffer, the NUL included; a longer name gives MoreData. NoMoreItems behind
    // the last one.
    virtual Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                                  std::string& name) = 0;

    // RegCloseKey.
    virtual Result Close(Key key) = 0;
};

}  // namespace platform
