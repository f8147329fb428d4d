#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kit {

// What the program with these bytes imports and this system does not have, as "library!function";
// no library is started for that. What is no program lacks everything.
std::vector<std::string> MissingImports(std::string_view program);

}  // namespace kit
