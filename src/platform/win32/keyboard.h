#pragma once

#include "platform/keyboard.h"

namespace platform::win32 {

class Keyboard final : public platform::Keyboard {
  public:
    std::int16_t AsyncState(int virtualKey) override;
};

}  // namespace platform::win32
