#pragma once

#include <string_view>

namespace regfile {

inline constexpr std::string_view Header = "Windows Registry Editor Version 5.00";

// The root of that name, in any letter case, as it is written out; empty for any other.
std::string_view RootNamed(std::string_view name);

// Whether a key can have this path: no part of it is empty, and it goes on one line.
bool IsPath(std::string_view path);

}  // namespace regfile
