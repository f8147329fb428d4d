#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace platform::dryrun {

struct RegistryValue {
    std::uint32_t type = 0;
    std::vector<std::uint8_t> bytes;

    bool operator==(const RegistryValue&) const = default;
};

// One difference between the registry as it is and as the dry run shows it.
struct Change {
    enum class Kind { KeyCreated, KeyDeleted, ValueWritten, ValueDeleted };

    Kind kind = Kind::KeyCreated;
    platform::Registry::Key root = 0;
    // Below the root; "" for the root itself.
    std::string path;
    // Of a value; "" is the default one.
    std::string valueName = {};
    std::optional<RegistryValue> before = std::nullopt;
    std::optional<RegistryValue> after = std::nullopt;

    bool operator==(const Change&) const = default;
};

}  // namespace platform::dryrun
