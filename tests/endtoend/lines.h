#pragma once

#include <string>
#include <vector>

namespace endtoend {

// For checks that must show all that is wrong at once: compare with the empty text.
inline std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + '\n';
    return text;
}

}  // namespace endtoend
