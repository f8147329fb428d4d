#pragma once

#include <string_view>

// The parts of a path as the file system object tells them. They look at the text alone; whether
// anything is there plays no part.
namespace cleanup {

// The last part of the path; backslashes behind it do not count. "" for a drive or its root.
std::string_view GetFileName(std::string_view path);

// What stands behind the last dot of such a last part, without the dot; "" where there is no dot.
// So "x." has the extension "" and ".tmp" the extension "tmp".
std::string_view ExtensionOf(std::string_view name);

}  // namespace cleanup
