#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/dryrun/change.h"

namespace platform::dryrun {

// A value that was set or, without one, deleted. The name stands as it was given.
struct PendingValue {
    std::string name;
    std::optional<RegistryValue> value;
    // Made after its deletion, so its name is the new one.
    bool renewed = false;
};

// One key that somebody has opened, made or deleted. The maps go by the folded names. A key that
// was deleted and made anew is a new node, so that handles to the old one can tell.
struct RegistryNode {
    std::string name;
    platform::Registry::Key root = 0;
    int depth = 0;
    // nullptr for a root.
    RegistryNode* parent = nullptr;
    // Whether the inner registry has such a key, and whether what is not here is looked up there.
    bool isInside = true;
    bool readsThrough = true;
    bool deleted = false;
    std::map<std::string, std::shared_ptr<RegistryNode>> children;
    std::map<std::string, PendingValue> values;
};

}  // namespace platform::dryrun
