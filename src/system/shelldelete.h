#pragma once

#include <string_view>

namespace platform {
class Shell;
}

namespace sys {

// Moves a file or a directory to the recycle bin without showing the progress. Unless `silent`, the
// shell may ask before. True when the shell reported no error, which the user's No is not.
bool ShellDeleteFile(platform::Shell& shell, std::string_view path, bool silent);

}  // namespace sys
