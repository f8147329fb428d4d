#include "platform/win32/keyboard.h"

#include <windows.h>

namespace platform::win32 {

std::int16_t Keyboard::AsyncState(int virtualKey) {
    return GetAsyncKeyState(virtualKey);
}

}  // namespace platform::win32
