#pragma once

#include <string>

namespace app {

// The program's version. The version block in resources/ carries the same four numbers.
inline constexpr int MajorVersion = 2;
inline constexpr int MinorVersion = 3;
inline constexpr int Revision = 8;

// "v", the major version, a point, then minor version and revision with nothing between them:
// 2.3.0.8 is v2.38.
inline std::string VersionText(int major, int minor, int revision) {
    return "v" + std::to_string(major) + "." + std::to_string(minor) + std::to_string(revision);
}

}  // namespace app
