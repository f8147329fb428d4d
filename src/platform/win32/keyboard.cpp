#include "platform/win32/keyboard.h"

#include <windows.h>

#include "toolkit/keys.h"

namespace platform::win32 {

namespace key = toolkit::key;

static_assert(key::Escape == VK_ESCAPE && key::Space == VK_SPACE && key::Delete == VK_DELETE);
static_assert(key::Left == VK_LEFT && key::Up == VK_UP);
static_assert(key::Right == VK_RIGHT && key::Down == VK_DOWN);
static_assert(key::F4 == VK_F4 && key::F5 == VK_F5);

std::int16_t Keyboard::AsyncState(int virtualKey) {
    return GetAsyncKeyState(virtualKey);
}

}  // namespace platform::win32
