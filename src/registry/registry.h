#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace platform {
class Locale;
}

namespace registry {

// The root under which a path is meant: what to add to the first predefined handle.
enum Root : std::int16_t { HKCR = 0, HKCU = 1, HKLM = 2 };

// Takes the head of a text, up to the first `delimiter`, off it and returns it. Without a delimiter
// the whole text is the head and nothing remains.
std::string RegSplitPath(std::string& text, std::string_view delimiter);

// The flat registry functions of the option catalogue. Each opens what it needs, does one thing and
// says nothing about its success: what cannot be written is left, what cannot be read is "" or
// false, because to the catalogue absent means the default state.
//
// Paths, value names and texts are UTF-8; texts are stored in the ANSI code page, one byte a
// character. A value name is taken as it stands: "(Standard)" is a value of that name, "" is the
// key's default value.
//
// Every read asks for the right to write as well, on purpose: where the user may only read, an
// option shows its absent state instead of one that he could not change.
class Registry {
  public:
    Registry(platform::Registry& service, const platform::Locale& locale)
        : service_(service), locale_(locale) {}

    // Both leave the key that they opened open, on purpose: a pass makes a bounded number of these
    // calls, and the program runs briefly.
    bool RegKeyPresent(Root root, std::string_view subKey) const;
    bool RegValuePresent(Root root, std::string_view subKey, std::string_view valueName) const;

    // The value as text: a text up to its first NUL (so of several texts the first, and
    // unexpanded); a 32-bit number as signed decimal; binary data as hexadecimal bytes with a blank
    // behind each. "" for an absent value and for any other type.
    //
    // Leaves the key open when a query fails, on purpose like the two above.
    std::string RegReadValue(Root root, std::string_view subKey, std::string_view valueName) const;

    // The writers create the key with all its levels first. The terminating NUL of a text is not
    // stored.
    void RegWriteString(Root root, std::string_view subKey, std::string_view valueName,
                        std::string_view text);
    // Throws Failure InvalidProcedureCall for a negative number, when the key is made and nothing
    // is written yet.
    void RegWriteDword(Root root, std::string_view subKey, std::string_view valueName,
                       std::int32_t number);
    // Stores the characters of the text themselves: "ff,00" becomes five bytes, not two.
    void RegWriteBinary(Root root, std::string_view subKey, std::string_view valueName,
                        std::string_view text);

    // Sets a value of an existing key; creates nothing. `bytes` holds at least `size` bytes.
    void RegWriteRaw(Root root, std::string_view subKey, std::string_view valueName,
                     std::uint32_t type, std::string_view bytes, std::uint32_t size);

    void RegDeleteValueAt(Root root, std::string_view subKey, std::string_view valueName);
    // Removes a key only when it has no sub-keys.
    void RegDeleteKeyAt(Root root, std::string_view subKey);

    // Makes every level of the path, one at a time from the root downwards.
    void RegCreateKeyAt(Root root, std::string_view path);
    void RegCreateSubKey(Root root, std::string_view parent, std::string_view child);

  private:
    bool Open(Root root, std::string_view subKey, std::uint32_t access,
              platform::Registry::Key& opened) const;

    platform::Registry& service_;
    const platform::Locale& locale_;
};

}  // namespace registry
