#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dryrun/change.h"
#include "platform/dryrun/innerregistry.h"
#include "platform/dryrun/registrynode.h"
#include "platform/locale.h"
#include "platform/registry.h"

namespace platform::dryrun {

// A registry that keeps every write to itself and shows another one through what it keeps. Results
// are those that the other one would give; whether it would refuse is found out by opening there
// with the same rights, and a key that is not there yet has those of the nearest one above it that
// is. Each root is a tree of its own: what is pending below HKLM\Software\Classes does not show
// below HKCR. A value that may not be read counts as there; a key whose name is too long to be
// enumerated stands right behind the one before it.
class Registry final : public platform::Registry {
  public:
    Registry(platform::Registry& inner, const platform::Locale& locale);
    ~Registry() override;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

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

    // What would have to be done to the inner registry, in the order of places: root by root, a key
    // before its values and these before its sub-keys. A deleted key's values are told, too. What
    // equals the inner registry, names in any case, is no change. Done in this order, the deletions
    // last and backwards, it never meets a key with sub-keys to delete, or a parent that is
    // missing.
    //
    // Values are compared as the ANSI calls tell them. Whoever can compare the bytes behind those
    // may have the values told, too, that were written with what they had.
    enum class Telling { Differences, Writes };
    std::vector<Change> Changes(Telling telling = Telling::Differences);

  private:
    using NodeRef = std::shared_ptr<RegistryNode>;
    using Names = InnerRegistry::Names;
    struct Handle {
        NodeRef node;
        std::uint32_t access = 0;
        // In the inner registry, when the node reads through.
        Key inside = 0;
    };

    std::string AsStored(std::string_view text) const;
    std::string Folded(std::string_view name) const;
    std::size_t LengthOf(std::string_view name) const;
    Names NamesOf(std::string_view path) const;
    static Names PathOf(const RegistryNode& node);
    NodeRef NewNode(RegistryNode& parent, const std::string& name) const;
    NodeRef Child(RegistryNode& parent, const std::string& name) const;
    // What the inner registry says to such an opening of the key, or of the nearest one above.
    Result Rights(const RegistryNode& node, std::uint32_t access);
    bool IsInside(const RegistryNode& parent, const std::string& name);
    // Brings `node` down to the deepest level that is known here; the names that are left follow.
    Result Descend(NodeRef& node, Names& names) const;
    Result OpenBelow(const NodeRef& from, const Names& names, std::uint32_t access, Handle& opened);
    Result MakePath(NodeRef& node, const Names& names, std::uint32_t access);

    // The handle's key; a predefined root's rights are asked for afresh each time.
    Result Look(Key key, Handle& found) const;
    Result Use(Key key, std::uint32_t right, Handle& found);
    Key NewHandle(Handle handle);
    static bool ShowsInnerKeys(const RegistryNode& node);
    std::vector<std::optional<std::string>> KeyNames(const RegistryNode& node, Key inside);
    Names ValueNames(const RegistryNode& node, Key inside);
    bool HasChildren(const RegistryNode& node);
    bool HasValue(const RegistryNode& node, const std::string& name);

    void AddChanges(const RegistryNode& node, Telling telling, std::vector<Change>& changes);
    void AddValueChanges(const RegistryNode& node, const std::string& path, Telling telling,
                         std::vector<Change>& changes);

    InnerRegistry inner_;
    const platform::Locale& locale_;
    std::array<NodeRef, 3> roots_;
    std::map<Key, Handle> handles_;
    Key nextHandle_;
};

}  // namespace platform::dryrun
