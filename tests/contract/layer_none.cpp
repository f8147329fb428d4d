#include "contract/layer.h"

namespace contract {

struct Layer::Inside {
    platform::Machine& machine;
};

Layer::Layer(platform::Machine& machine) : inside_(new Inside{machine}) {}

Layer::~Layer() = default;

platform::Machine& Layer::Services() {
    return inside_->machine;
}

bool Layer::KeepsWrites() const {
    return false;
}

std::optional<Stored> Layer::StoredAt(platform::Registry::Key, std::string_view,
                                      std::string_view) const {
    return std::nullopt;
}

}  // namespace contract
