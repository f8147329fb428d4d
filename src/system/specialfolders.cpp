#include "system/specialfolders.h"

#include "platform/shell.h"
#include "platform/systemfacts.h"

namespace sys {

std::string GetSpecialFolderPath(const platform::Shell& shell, std::int32_t csidl) {
    return shell.SpecialFolder(csidl);
}

std::string GetTempDirectory(const platform::SystemFacts& facts) {
    std::string directory = facts.TempPath();
    // A backslash alone would be the root of the drive, all of which would then be taken for
    // temporary.
    if (!directory.empty() && directory.back() != '\\') directory += '\\';
    return directory;
}

}  // namespace sys
