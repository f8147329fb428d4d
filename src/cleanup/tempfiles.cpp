#include "cleanup/tempfiles.h"

#include "cleanup/drivespacelabels.h"
#include "cleanup/recyclebin.h"
#include "runtime/text.h"
#include "system/driveentries.h"
#include "system/systemdirectorypaths.h"

namespace cleanup {

TempFiles::TempFiles(toolkit::Form& form, const platform::Machine& machine)
    : machine_(machine),
      frame_(form, machine),
      search_(frame_, machine, links_),
      removal_(frame_, machine, links_) {
    frame_.cmdSearchTempFiles.onClick = [this] { search_.Click(); };
    frame_.cmdCleanTempFiles.onClick = [this] { removal_.Click(); };
    frame_.cmdCleanBinDirect.onClick = [this] { CleanBinDirect(frame_, machine_); };
    const auto showSpace = [this] { ShowDriveSpace(); };
    frame_.drvSelect.onChange = showSpace;
    frame_.drvSelect.onScroll = showSpace;
}

void TempFiles::Start() {
    frame_.drvSelect.SetDrives(sys::DriveEntries(machine_.systemInformation));
    const sys::clsGetSystemDirectoryPaths directories(machine_.systemFacts);
    frame_.drvSelect.SetDrive(runtime::Left(directories.WindowsDirectory(), 3));
}

void TempFiles::ShowDriveSpace() {
    cleanup::ShowDriveSpace(frame_, machine_);
}

}  // namespace cleanup
