#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cleanup/folderrules.h"
#include "platform/clock.h"
#include "platform/machine.h"

namespace platform {
struct FolderEntry;
}

namespace cleanup {

struct Folder;
class KnownLinks;
class TempFilesFrame;

// The way through the folders, and the rows that it leaves in the list.
class FolderWalk {
  public:
    FolderWalk(TempFilesFrame& frame, const platform::Machine& machine, KnownLinks& links)
        : frame_(frame), machine_(machine), links_(links) {}

    // Counts from 0 and asks anew for the folders that are left out.
    void Begin();

    // From now on each folder is left as soon as it is entered, until Resume.
    void Stop() { stopped_ = true; }
    void Resume() { stopped_ = false; }

    // The folders below it first, the deepest before the others, then its own files. `addAll` takes
    // them all, whatever they are called. What fails is passed over: there is no message for a
    // folder that may not be read. Events run once for each folder, at its beginning.
    void ScanFolder(const Folder& folder, bool addAll);

    // A row, ticked, unless the attributes forbid it. While the list is sorted a row's size, type
    // and date go to the last row, on purpose: they go by the number of rows. So a search in a
    // sorted list leaves rows without a size, which cannot be added up, and mostly ends with
    // failure 13.
    void AddFileRow(const std::string& path, double size, const std::string& type,
                    const platform::LocalTime& modified, std::uint32_t attributes);

    // How many files have been visited. Stays at the largest number there is.
    std::int32_t ScannedFiles() const { return scannedFiles_; }

  private:
    // Whether to leave the folder that is being read or entered; then the button is enabled. Asks
    // for Escape, too, which stops only what asks.
    bool PollForStop();
    void ScanFile(const std::string& path, const platform::FolderEntry& file, bool addAll);

    TempFilesFrame& frame_;
    platform::Machine machine_;
    KnownLinks& links_;
    std::optional<FolderRules> rules_;
    std::int32_t scannedFiles_ = 0;
    // Of the last file; told anew for each, in the same room.
    std::string counts_;
    bool stopped_ = false;
};

}  // namespace cleanup
