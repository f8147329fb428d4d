#include "platform/win32/display.h"

#include <windows.h>

namespace platform::win32 {

toolkit::Size Display::Size() const {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

}  // namespace platform::win32
