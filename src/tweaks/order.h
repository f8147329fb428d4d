#pragma once

#include <span>
#include <string_view>

namespace tweaks {

// The names of the options in the order in which a pass takes them. The order matters because what
// stands after a failing step stays undone. A control that is read and written by another option's
// row has no place of its own.
std::span<const std::string_view> ReadOrder();
std::span<const std::string_view> WriteOrder();

}  // namespace tweaks
