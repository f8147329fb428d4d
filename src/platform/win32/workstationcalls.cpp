#include <windows.h>

#include <lm.h>

#include "platform/win32/workstation.h"

namespace platform::win32 {

// Apart from the rest of the class, so that a program can be linked that asks somebody else.
Workstation::Workstation() : Workstation(NetWkstaUserEnum, NetApiBufferFree) {}

}  // namespace platform::win32
