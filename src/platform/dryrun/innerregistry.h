#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dryrun/change.h"
#include "platform/registry.h"

namespace platform::dryrun {

// The registry below a dry run, with none of the calls that write: whoever has this cannot.
class InnerRegistry {
  public:
    using Key = platform::Registry::Key;
    using Result = platform::Registry::Result;
    using Names = std::vector<std::string>;

    // The right to all that there is to have.
    static constexpr std::uint32_t MaximumAllowed = 0x2000000;

    explicit InnerRegistry(platform::Registry& inner) : inner_(inner) {}

    // Opens the key that the names lead to, level by level from the root on.
    Result Open(Key root, const Names& names, std::uint32_t access, Key& opened);
    // What opening it gives.
    Result Ask(Key root, const Names& names, std::uint32_t access);
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size);
    Result EnumerateKey(Key key, std::uint32_t index, std::string& name);
    Result LongestValueName(Key key, std::uint32_t& length);
    Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room, std::string& name);
    void Close(Key key);

    // A name that the enumeration does not tell, being too long, is no name.
    std::vector<std::optional<std::string>> KeyNames(Key key);
    Names ValueNames(Key key);
    std::optional<RegistryValue> Value(Key key, std::string_view valueName);

  private:
    platform::Registry& inner_;
};

}  // namespace platform::dryrun
