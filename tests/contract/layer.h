#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "contract/machine.h"

namespace contract {

// What the cases see of a machine: layer_none.cpp shows it as it is, layer_dryrun.cpp through a dry
// run.
class Layer {
  public:
    explicit Layer(platform::Machine& machine);
    ~Layer();
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;

    platform::Machine& Services();

    // Whether what is written has to be looked for here, and what is there.
    bool KeepsWrites() const;
    std::optional<Stored> StoredAt(platform::Registry::Key root, std::string_view path,
                                   std::string_view valueName) const;

  private:
    struct Inside;
    std::unique_ptr<Inside> inside_;
};

}  // namespace contract
