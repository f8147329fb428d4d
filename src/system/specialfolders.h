#pragma once

#include <cstdint>
#include <string>

namespace platform {
class Shell;
class SystemFacts;
}  // namespace platform

namespace sys {

// The path of a shell folder by its CSIDL number, "" on failure.
std::string GetSpecialFolderPath(const platform::Shell& shell, std::int32_t csidl);

// The directory for temporary files, ending in a backslash; "" when the system does not tell.
std::string GetTempDirectory(const platform::SystemFacts& facts);

}  // namespace sys
