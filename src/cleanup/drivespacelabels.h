#pragma once

namespace platform {
struct Machine;
}

namespace cleanup {

class TempFilesFrame;

// Shows how large the selected drive is and how much of it is used. A drive without a medium has 0
// bytes used.
void ShowDriveSpace(TempFilesFrame& frame, const platform::Machine& machine);

}  // namespace cleanup
