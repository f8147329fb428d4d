#pragma once

#include <array>
#include <string>
#include <string_view>

namespace platform {
struct Machine;
}

namespace cleanup {

// The folders that no search enters. The system's own folders are asked for once, when the rules
// are made, since they do not change during a search.
class FolderRules {
  public:
    explicit FolderRules(const platform::Machine& machine);

    // Whether the folder, and with it all below it, is left out. A system directory that the system
    // does not tell leaves out everything.
    bool IsExcludedFolder(std::string_view path) const;

  private:
    // All in capitals: whole paths, and what paths begin with.
    std::array<std::string, 4> whole_;
    std::array<std::string, 3> beginnings_;
};

}  // namespace cleanup
