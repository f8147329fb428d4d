#include "contract/layer.h"
#include "platform/dryrun/machine.h"

namespace contract {

struct Layer::Inside {
    platform::dryrun::Machine machine;
};

Layer::Layer(platform::Machine& machine)
    : inside_(new Inside{platform::dryrun::Machine(machine)}) {}

Layer::~Layer() = default;

platform::Machine& Layer::Services() {
    return inside_->machine.services;
}

bool Layer::KeepsWrites() const {
    return true;
}

std::optional<Stored> Layer::StoredAt(platform::Registry::Key root, std::string_view path,
                                      std::string_view valueName) const {
    using platform::Registry;
    Registry& registry = inside_->machine.registry;
    Registry::Key key = 0;
    if (registry.Open(root, path, Registry::MayQueryValue, key) != Registry::Success) {
        return std::nullopt;
    }
    Stored stored;
    std::uint32_t size = 0;
    const auto result = registry.Query(key, valueName, stored.type, nullptr, size);
    stored.bytes.resize(size);
    if (size > 0) {
        registry.Query(key, valueName, stored.type,
                       reinterpret_cast<std::uint8_t*>(stored.bytes.data()), size);
    }
    registry.Close(key);
    return result == Registry::Success ? std::optional(stored) : std::nullopt;
}

}  // namespace contract
