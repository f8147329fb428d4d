#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace platform::simulated {

class Faults;
class Journal;

struct StoredValue {
    std::uint32_t type = 0;
    std::vector<std::uint8_t> bytes;

    bool operator==(const StoredValue&) const = default;
};

// Values as a test writes them down. Text is taken to code page 1252.
StoredValue DwordValue(std::uint32_t number);
// With the terminating NUL, as Windows itself stores texts.
StoredValue TextValue(std::string_view text);
// Without it, as the program stores texts.
StoredValue BareTextValue(std::string_view text);

// Types 1, 2 and 7.
bool IsTextType(std::uint32_t type);

struct RegistryNode;

// The registry in memory. Key and value names are compared without regard to case and keep the
// case in which they were made. Where the calls differ in detail between versions of Windows, this
// is XP's way: a leading backslash is a bad path, a handle to a key that somebody has deleted
// says so, and values are read and written by the rights that the handle was opened with.
class Registry final : public platform::Registry {
  public:
    Registry(Journal& journal, Faults& faults);
    ~Registry() override;

    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override;
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& created) override;
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override;
    Result Set(Key key, std::string_view valueName, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override;
    Result RemoveValue(Key key, std::string_view valueName) override;
    Result RemoveKey(Key parent, std::string_view path) override;
    Result EnumerateKey(Key key, std::uint32_t index, std::string& name) override;
    Result LongestValueName(Key key, std::uint32_t& length) override;
    Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                          std::string& name) override;
    Result Close(Key key) override;

    // Seeding, unjournalled. `root` is one of the three predefined handles.
    void MakeKey(Key root, std::string_view path);
    void Put(Key root, std::string_view path, std::string_view valueName, StoredValue value);
    void Erase(Key root, std::string_view path, std::string_view valueName);
    void EraseKey(Key root, std::string_view path);
    // Refuses any opening or making of the key or of what lies below it that asks for one of these
    // rights, and any deletion there. Handles that are open keep what they have. The key need not
    // be there yet.
    void Deny(Key root, std::string_view path, std::uint32_t rights = MayDoAll);
    // Loads a registration file (text "Windows Registry Editor Version 5.00", as UTF-8). A line
    // that cannot be read is a mistake in the test's data (std::runtime_error with its number).
    void Load(std::string_view registrationText);

    // Looking, unjournalled.
    bool HasKey(Key root, std::string_view path) const;
    std::optional<StoredValue> Value(Key root, std::string_view path,
                                     std::string_view valueName) const;
    // Every value below the three roots as "HKLM\path|name" -> value; a key without values as
    // "HKLM\path|" with type 0xFFFFFFFF. Two dumps that are equal are two equal registries.
    std::map<std::string, StoredValue> Dump() const;
    int OpenHandles() const;

  private:
    // Between one handle and the next, as on Windows.
    static constexpr Key HandleStep = 4;

    using NodeRef = std::shared_ptr<RegistryNode>;
    struct Handle {
        NodeRef node;
        std::uint32_t access = 0;
    };
    // Rights refused on a key, by its full path, and below.
    struct Denial {
        std::string path;
        std::uint32_t rights;
    };

    const NodeRef& Root(Key root) const;
    NodeRef Seeded(Key root, std::string_view path);
    std::uint32_t Denied(std::string_view fullPath) const;
    // The handle's key and rights; what a predefined root may do is asked afresh each time.
    Result Look(Key key, Handle& found) const;
    Result Use(Key key, std::uint32_t right, Handle& found) const;
    std::optional<Result> Fault(std::string_view call, Key key, std::string_view path,
                                const char* separator) const;
    Result OpenKey(Key parent, std::string_view path, std::uint32_t access, Key& opened);
    Result CreateKey(Key parent, std::string_view path, std::uint32_t access, Key& created);
    // Goes down the path from `node` and makes what is missing.
    Result MakePath(NodeRef& node, std::string_view path, std::uint32_t access);
    Result QueryValue(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                      std::uint32_t& size) const;
    Result SetValue(Key key, std::string_view valueName, StoredValue value);
    Result EraseValue(Key key, std::string_view valueName);
    Result DeleteKey(Key parent, std::string_view path);
    Result KeyAt(Key key, std::uint32_t index, std::string& name) const;
    Result ValueAt(Key key, std::uint32_t index, std::uint32_t room, std::string& name) const;
    Result LongestName(Key key, std::uint32_t& length) const;
    static std::string KeyText(Key key);
    Key NewHandle(NodeRef node, std::uint32_t access);

    std::array<NodeRef, 3> roots_;
    std::vector<Denial> denials_;
    std::map<Key, Handle> handles_;
    Key nextHandle_ = HandleStep;
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
