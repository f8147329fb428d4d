#include "contract/layer.h"
#include "platform/machinewith.h"
#include "platform/win32/folders.h"

namespace contract {

// Folders are read as on a system that has nothing better than FindFirstFileW.
struct Layer::Inside {
    explicit Inside(platform::Machine& real)
        : machine(platform::With(real, {.folders = &folders})) {}

    platform::win32::Folders folders{nullptr};
    platform::Machine machine;
};

Layer::Layer(platform::Machine& machine) : inside_(new Inside(machine)) {}

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
