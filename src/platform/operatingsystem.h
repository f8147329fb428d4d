#pragma once

#include <string>

namespace platform {

// The one build that the program's values are made for.
inline constexpr int WindowsXpBuild = 2600;

struct OperatingSystemFacts {
    // As its vendor writes it, "Microsoft Windows XP".
    std::string name;
    int major = 0;
    int minor = 0;
    int build = 0;
};

class OperatingSystem {
  public:
    virtual ~OperatingSystem() = default;

    // GetVersionExA. Throws Failure CannotCreateObject when the system does not answer.
    virtual OperatingSystemFacts Facts() const = 0;
};

}  // namespace platform
