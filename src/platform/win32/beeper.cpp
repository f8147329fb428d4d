#include "platform/win32/beeper.h"

#include <windows.h>

namespace platform::win32 {

void Beeper::Beep() {
    constexpr UINT plain = 0xFFFFFFFF;
    MessageBeep(plain);
}

}  // namespace platform::win32
