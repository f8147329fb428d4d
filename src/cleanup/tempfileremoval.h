#pragma once

#include <string>

#include "cleanup/knownlinks.h"

namespace platform {
struct Machine;
}

namespace cleanup {

class TempFilesFrame;

// What "Dateien löschen" does with the rows of the list. Nothing but what the rows name is deleted:
// not what a link in a folder leads to, nor what lies behind a link that has come since the search.
class TempFileRemoval {
  public:
    TempFileRemoval(TempFilesFrame& frame, platform::Machine& machine, const KnownLinks& links)
        : frame_(frame), machine_(machine), links_(links) {}

    // Asks, then removes. What fails is passed over, and the list is empty at the end.
    void Click();

  private:
    bool AnyTicked() const;
    bool Confirmed() const;
    // Returns how many of the ticked files were in use.
    int RemoveRows();
    // Whether the path still names what the search found there.
    bool MayTouch(const std::string& path) const;
    bool IsInUse(const std::string& path) const;
    void RemoveFile(const std::string& path);
    void RemoveFolder(const std::string& path);
    void MoveToBin(const std::string& path);

    TempFilesFrame& frame_;
    platform::Machine& machine_;
    const KnownLinks& links_;
    // As they were when the user confirmed, like the rows.
    KnownLinks confirmedLinks_;
};

}  // namespace cleanup
