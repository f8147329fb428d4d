#pragma once

#include <string_view>

namespace platform {
class Files;
}

namespace sys {

// Whether somebody has the file open. Lets every failure of the opening through that is not that
// one: the file is not there, is a directory, may not be read.
bool FileIsLocked(platform::Files& files, std::string_view path);

}  // namespace sys
