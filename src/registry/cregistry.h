#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/machine.h"
#include "platform/registry.h"

namespace registry {

// The data of a value as the program has them: nothing, a text, a number, or bytes.
using Data = std::variant<std::monostate, std::string, std::int32_t, std::vector<std::uint8_t>>;

// What a file type may offer besides opening.
struct AssociationOptions {
    std::string_view sOpenMenuText = "&Open";
    bool bSupportPrint = false;
    std::string_view sPrintMenuText = "&Print";
    bool bSupportNew = false;
    std::string_view sNewMenuText = "&New";
    bool bSupportInstall = false;
    // "" stands for "&Install " and the name of the class.
    std::string_view sInstallMenuText = "";
    // Of the icon within the executable; below 0 there is none.
    std::int32_t lDefaultIconIndex = -1;
};

// The registry as an object, for the dialogs: it is told which root, which key and which value, and
// then asked to act. What does not succeed throws Failure 26001, other than in the functions of
// registry/registry.h; the program's name and ".cRegistry" are its source.
//
// Texts are UTF-8 here and stored in the ANSI code page.
class cRegistry {
  public:
    static constexpr int FailureNumber = 26001;

    explicit cRegistry(const platform::Machine& machine) : machine_(machine) {}

    // A predefined root.
    platform::Registry::Key ClassKey = 0;
    // The path below the root.
    std::string SectionKey;
    std::string ValueKey;
    // What Value gives when the value cannot be read.
    Data Default;
    // Set before writing; each successful reading sets it to the stored type.
    std::uint32_t ValueType = platform::Registry::None;

    // The stored value: types 1 and 7 as text without its last byte, which should be the NUL (a
    // text stored without one loses a character, on purpose: the size is all that is gone by);
    // type 2 as the same with environment references expanded; 4 and 5 as number; all others as
    // bytes. Leaves the opened key open, on purpose: each refresh of a list costs a handle a value
    // for as long as the program runs.
    Data Value();
    // Makes the key when it is not there. By ValueType: 1 and 2 store a text, as type 2 if it has
    // two percent signs and as type 1 otherwise, whatever was said; 3 stores bytes; 4 and 5 store
    // a number as type 4. Throws TypeMismatch when the data do not fit, and for any other type.
    void SetValue(const Data& data);

    bool KeyExists();
    // These return true or throw.
    bool CreateKey();
    // A path with an empty part, such as one that ends in a backslash, is no key's.
    bool DeleteKey();
    bool DeleteValue();

    // The names of all values or sub-keys; the first one at index 0. Where there are none, and
    // where the key cannot be opened, the count is 0 and the names stay as they were.
    void EnumerateValues(std::vector<std::string>& sKeyNames, int& iKeyCount);
    void EnumerateSections(std::vector<std::string>& sSect, int& iSectCount);

    // Registers a file type below SOFTWARE\Classes of the root; `sAssociation` is its extension
    // without the point. Changes SectionKey, ValueKey and ValueType. The program itself calls
    // neither of the two.
    bool CreateEXEAssociation(std::string_view sExePath, std::string_view sClassName,
                              std::string_view sClassDescription, std::string_view sAssociation,
                              const AssociationOptions& options = {});
    // Adds verbs to a class that has been registered: three entries each, name, text and command.
    bool CreateAdditionalEXEAssociations(std::string_view sClassName,
                                         const std::vector<std::string>& vItems);

  private:
    [[noreturn]] void Raise(std::string text) const;
    std::string Source() const;
    // "'KEY',Section: 'SECTION" and "',Key: 'VALUE" behind it.
    std::string SectionText() const;
    std::string ValueText() const;
    platform::Registry::Result Write(platform::Registry::Key key, const Data& data);
    void WriteClassText(const std::string& key, std::string_view text);
    std::string ExpandEnvStr(std::string_view text) const;

    platform::Machine machine_;
};

// What the data are as a text: numbers in decimal; "" for bytes and for nothing.
std::string AsText(const Data& data);

}  // namespace registry
