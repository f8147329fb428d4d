#pragma once

#include "cleanup/knownlinks.h"
#include "cleanup/tempfileremoval.h"
#include "cleanup/tempfilesearch.h"
#include "cleanup/tempfilesframe.h"
#include "platform/machine.h"

namespace cleanup {

// The tool of the frame "Temporäre Dateien": makes its controls on the form and ties them to what
// they do. Lives as long as the form.
class TempFiles {
  public:
    TempFiles(toolkit::Form& form, const platform::Machine& machine);
    TempFiles(const TempFiles&) = delete;
    TempFiles& operator=(const TempFiles&) = delete;

    toolkit::Box Layout() const { return frame_.Layout(); }
    TempFilesFrame& Frame() { return frame_; }

    // At start-up: fills the list of drives and selects the one that Windows lies on; in a later
    // step shows its size.
    void Start();
    void ShowDriveSpace();

  private:
    platform::Machine machine_;
    TempFilesFrame frame_;
    KnownLinks links_;
    TempFileSearch search_;
    TempFileRemoval removal_;
};

}  // namespace cleanup
