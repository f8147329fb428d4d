#pragma once

#include <windows.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The registry as it really is: types and true bytes, nothing terminated or converted on the way.
namespace endtoend {

struct RegistryValue {
    DWORD type = REG_NONE;
    std::string bytes;

    bool operator==(const RegistryValue&) const = default;
};

RegistryValue Dword(DWORD number);
// As a program leaves it that does not count the terminator: two bytes a character and no more.
RegistryValue BareText(std::string_view text);
// With its terminator, as the system's own tools store texts.
RegistryValue TerminatedText(std::string_view text);
// Each character of the text is one byte.
RegistryValue Binary(std::string_view bytes);

// For messages: "dword 00000001", "text \"Y\" 2 bytes", "binary 66 66", or "absent".
std::string Describe(const std::optional<RegistryValue>& value);

struct ValuePlace {
    // "HKCR", "HKCU" or "HKLM".
    std::string root;
    std::string key;
    std::string name;
};

// "HKEY_LOCAL_MACHINE" or "HKLM", and so on. Throws Failed for any other name.
HKEY RootOf(std::string_view name);

std::optional<RegistryValue> ReadValue(const ValuePlace& place);
// Makes the key too.
void WriteValue(const ValuePlace& place, const RegistryValue& value);
void DeleteValue(const ValuePlace& place);
bool KeyExists(const std::string& root, const std::string& key);
void CreateKey(const std::string& root, const std::string& key);
void DeleteTree(const std::string& root, const std::string& key);
// Deletes the key when it holds nothing, then the one above it, and so on.
void DeleteEmptyKeys(const std::string& root, const std::string& key);

// Path, a bar and the value's name; of a key itself the path alone, without a value. Paths are in
// lower case, as the registry does not tell upper from lower case either.
using RegistryState = std::map<std::string, std::optional<RegistryValue>>;

// Everything below these keys ("HKCU\\Software", ...).
RegistryState Snapshot(const std::vector<std::string>& keys);

// One line a difference, sorted: the path, then what was and what is.
std::vector<std::string> Differences(const RegistryState& before, const RegistryState& after);

}  // namespace endtoend
