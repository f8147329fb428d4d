#pragma once

#include <cstdint>

namespace platform {

// The keyboard beside the messages that windows get from it.
class Keyboard {
  public:
    virtual ~Keyboard() = default;

    // GetAsyncKeyState: negative while the key is down; odd when it has been pressed since it was
    // last asked for.
    virtual std::int16_t AsyncState(int virtualKey) = 0;
};

}  // namespace platform
