#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace endtoend {

// What was asked for did not come, or cannot be done from outside. The text says what and why.
struct Failed : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Milliseconds: how long anything may take, also on a machine with ten times as much to do as it
// can, and the distance of two looks.
inline constexpr unsigned Patience = 60000;
inline constexpr unsigned Step = 10;
// After that a window that does not answer counts as blocked.
inline constexpr unsigned Blocked = 15000;

// Looks until `come` says true. Throws Failed with `what` when that takes longer than `patience`.
void Until(const std::string& what, const std::function<bool()>& come,
           unsigned patience = Patience);

}  // namespace endtoend
