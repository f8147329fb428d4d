#pragma once

#include <cstdint>
#include <string>

#include "cleanup/folderwalk.h"
#include "platform/machine.h"

namespace cleanup {

// What "Suchen" does.
class TempFileSearch {
  public:
    TempFileSearch(TempFilesFrame& frame, const platform::Machine& machine, KnownLinks& links)
        : frame_(frame), machine_(machine), links_(links), walk_(frame, machine, links) {}

    // Searches, or, while the button says "Stop", asks the search that is running to stop.
    void Click();

  private:
    void Begin();
    void Collect();
    void ScanDrives();
    // Throws what GetFolder throws.
    void Scan(const std::string& path, bool addAll);
    // The folders directly in it get a row each, with the size of all that they hold.
    void AddSubFolderRows(const std::string& path);
    // Adds the sizes of all rows to `total`. Throws Failure Overflow beyond 32 bits.
    void AddSizes(std::int32_t& total) const;
    void ShowResult(std::int32_t total);

    TempFilesFrame& frame_;
    platform::Machine machine_;
    KnownLinks& links_;
    FolderWalk walk_;
};

}  // namespace cleanup
