#pragma once

#include "platform/machine.h"

namespace cleanup {

class KnownLinks;
class TempFilesFrame;

// What "Dateien löschen" does with the rows of the list.
class TempFileRemoval {
  public:
    TempFileRemoval(TempFilesFrame& frame, const platform::Machine& machine,
                    const KnownLinks& links)
        : frame_(frame), machine_(machine), links_(links) {}

    // Asks, then removes. What fails is passed over, and the list is empty at the end.
    void Click();

  private:
    bool AnyTicked() const;
    bool Confirmed() const;

    TempFilesFrame& frame_;
    platform::Machine machine_;
    const KnownLinks& links_;
};

}  // namespace cleanup
