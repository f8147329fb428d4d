#pragma once

#include <string>
#include <vector>

namespace platform {
class SystemInformation;
}

namespace sys {

// What a list of drives shows, in the order of the letters: "a:", "c: [SYSTEM]". The label is
// asked of disks only: a floppy drive would start up, and a network drive may take its time.
std::vector<std::string> DriveEntries(const platform::SystemInformation& information);

}  // namespace sys
