#pragma once

#include "platform/machine.h"

namespace tools {

// Opens Anleitung.mht, which lies beside the program, in the user's browser. When that cannot be
// started a message says why.
void ShowHelp(const platform::Machine& machine);

}  // namespace tools
