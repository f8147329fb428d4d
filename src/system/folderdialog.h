#pragma once

#include <string>
#include <string_view>

namespace toolkit {
class Form;
}
namespace platform {
class Shell;
}

namespace sys {

// The folder picker over `owner`, opened on the folder `start`, which "" leaves to the system. The
// path of the selected folder stands below the title. Returns the path that was chosen, "" when
// the user has cancelled.
std::string BrowseForFolderPath(platform::Shell& shell, const toolkit::Form& owner,
                                std::string_view title, std::string_view start);

}  // namespace sys
