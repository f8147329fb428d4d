#pragma once

#include <deque>

#include "platform/keyboard.h"

namespace platform::simulated {

class Keyboard final : public platform::Keyboard {
  public:
    std::int16_t AsyncState(int virtualKey) override;

    // What the next asking for Escape hears, one after the other; then the key is at rest. Not
    // journalled, as it is asked for each file.
    std::deque<std::int16_t> escape;
};

}  // namespace platform::simulated
