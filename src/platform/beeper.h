#pragma once

namespace platform {

class Beeper {
  public:
    virtual ~Beeper() = default;

    // The platform's plain beep, by which it refuses an entry. Does not wait for the sound.
    virtual void Beep() = 0;
};

}  // namespace platform
