#include "system/driveentries.h"

#include "platform/systeminformation.h"
#include "runtime/text.h"

namespace sys {

std::vector<std::string> DriveEntries(const platform::SystemInformation& information) {
    std::vector<std::string> entries;
    for (const platform::Drive& drive : information.Drives()) {
        std::string entry = runtime::ToLower(drive.root.substr(0, 2));
        const bool isDisk = drive.kind == platform::DriveKind::Fixed ||
                            drive.kind == platform::DriveKind::OpticalDisc ||
                            drive.kind == platform::DriveKind::MemoryDisk;
        const std::string label = isDisk ? information.VolumeOn(drive.root).label.value_or("") : "";
        if (!label.empty()) entry += " [" + label + ']';
        entries.push_back(std::move(entry));
    }
    return entries;
}

}  // namespace sys
