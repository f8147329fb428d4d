#pragma once

#include <string_view>

namespace platform {
class Files;
class Shell;
}  // namespace platform

namespace utilities {

// Whether somebody has the file open. Lets every failure of the opening through that is not that
// one: the file is not there, is a directory, may not be read.
bool FileIsLocked(platform::Files& files, std::string_view path);

// Moves a file or a directory to the recycle bin without showing the progress. Unless `silent`, the
// shell may ask before. True when the shell reported no error, which the user's No is not.
bool ShellDeleteFile(platform::Shell& shell, std::string_view path, bool silent);

}  // namespace utilities
