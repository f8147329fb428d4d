#pragma once

namespace platform {
struct Machine;
class Shell;
}  // namespace platform

namespace cleanup {

class TempFilesFrame;

// Empties the bins of all drives without asking, whichever drive the messages name.
void EmptyRecycleBin(platform::Shell& shell);

// What "Sofort" does: asks, then empties the bins.
void CleanBinDirect(TempFilesFrame& frame, const platform::Machine& machine);

}  // namespace cleanup
