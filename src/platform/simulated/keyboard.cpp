#include "platform/simulated/keyboard.h"

#include "toolkit/keys.h"

namespace platform::simulated {

std::int16_t Keyboard::AsyncState(int virtualKey) {
    if (virtualKey != toolkit::key::Escape || escape.empty()) return 0;
    const std::int16_t state = escape.front();
    escape.pop_front();
    return state;
}

}  // namespace platform::simulated
