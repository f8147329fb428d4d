#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "endtoend/registrystate.h"

// What the two passes over the options must do to controls and registry, by the golden files alone.
namespace endtoend {

// The controls of the options by name: a check box is "1" or "0", all others are their text.
using ControlStates = std::map<std::string, std::string>;

// As the form has them before anything is read.
ControlStates DesignStates();

// The characters that a control takes at most; 0 for one without limit.
std::size_t LengthLimitOf(const std::string& control);

// A registry that can be asked and changed as the real one, kept as a snapshot is.
class PredictedRegistry {
  public:
    explicit PredictedRegistry(RegistryState state) : state_(std::move(state)) {}

    const RegistryState& State() const { return state_; }

    bool HasKey(const ValuePlace& place) const;
    // Nothing when key or value are absent.
    std::optional<RegistryValue> Value(const ValuePlace& place) const;
    // Makes the key and all above it.
    void Put(const ValuePlace& place, const RegistryValue& value);
    void MakeKey(const ValuePlace& place);
    void DeleteValue(const ValuePlace& place);
    // Of no effect when other keys lie below.
    void DeleteKey(const ValuePlace& place);

  private:
    RegistryState state_;
};

// The key's path as a snapshot has it; and the value's, behind a bar.
std::string KeyPath(const ValuePlace& place);
std::string ValuePath(const ValuePlace& place);

struct PassOutcome {
    // What the user is told of texts that are no numbers, in order.
    std::vector<std::string> complaints;
    // The number of the failure that ended the pass; 0 when it ran through.
    int failure = 0;
};

PassOutcome PredictRead(const PredictedRegistry& registry, ControlStates& controls);
PassOutcome PredictWrite(const ControlStates& controls, PredictedRegistry& registry);

}  // namespace endtoend
