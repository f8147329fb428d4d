#pragma once

#include <functional>
#include <string>

#include "platform/folders.h"

namespace platform::simulated {

class Disk;
class Faults;
class Journal;

// The folders of the disk in memory.
class Folders final : public platform::Folders {
  public:
    Folders(Journal& journal, Faults& faults, Disk& disk)
        : journal_(journal), faults_(faults), disk_(disk) {}

    std::vector<FolderEntry> List(std::string_view path) override;
    std::optional<FolderEntry> Find(std::string_view path) const override;
    std::string FullPath(std::string_view path) const override;
    void MakeCurrent(std::string_view path) override;
    std::string ShortPath(std::string_view path, std::size_t room) const override;
    std::string LongPath(std::string_view path) const override;
    void Remove(std::string_view path, bool force) override;

    // Where programs begin.
    std::string current = "C:\\";
    // Runs when a folder has been listed, with its path: what others do to the disk meanwhile.
    std::function<void(const std::string&)> afterListing;

  private:
    Journal& journal_;
    Faults& faults_;
    Disk& disk_;
};

}  // namespace platform::simulated
