#pragma once

#include <optional>
#include <string>

namespace platform::win32 {

// Texts below HKEY_CURRENT_USER, through the wide calls, so that nothing is lost to the code page.

// The text up to its first NUL; nothing when key or value is absent, unreadable, or no text. A
// stored text may lack its terminator, and half a character at its end is cut off.
std::optional<std::wstring> ReadUserText(const std::wstring& path, const std::wstring& name);

// Makes the key and stores a REG_SZ with its terminator; false when the system refuses.
bool WriteUserText(const std::wstring& path, const std::wstring& name, const std::wstring& text);

// False when there was no such value or the system refuses.
bool RemoveUserValue(const std::wstring& path, const std::wstring& name);

// A key without sub-keys. True also when there was none; false when the system refuses.
bool RemoveUserKey(const std::wstring& path);

}  // namespace platform::win32
