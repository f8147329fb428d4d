#pragma once

#include <string>
#include <vector>

namespace kit {

// What the results hang on.
struct Facts {
    // One fact a line, in German.
    std::vector<std::string> lines;
    bool isGerman = false;
    bool knowsLinks = false;
};

// `folder` is one on the drive on which the cases write, with a backslash at its end.
Facts LookAround(const std::wstring& folder);

}  // namespace kit
