#include "cleanup/drivespacelabels.h"

#include "cleanup/tempfilesframe.h"
#include "platform/machine.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "system/drivespace.h"

namespace cleanup {
namespace {

std::string Line(const char* title, const std::string& bytes) {
    return title + (bytes.empty() ? "0" : bytes) + " Bytes";
}

}  // namespace

void ShowDriveSpace(TempFilesFrame& frame, const platform::Machine& machine) {
    const bool shown = runtime::Skip([&] {
        const sys::clsGetDriveSpace space(machine.systemFacts, machine.locale);
        const std::string root = runtime::Left(frame.Drive(), 3);
        frame.lblGesamt.SetCaption(Line("Gesamt: ", space.TotalSize(root)));
        frame.lblFreeDriveSpace.SetCaption(Line("Belegt: ", space.UsedSize(root)));
    });
    if (!shown) frame.lblFreeDriveSpace.SetCaption(Line("Belegt: ", ""));
}

}  // namespace cleanup
