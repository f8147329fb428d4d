#pragma once

#include "platform/beeper.h"

namespace platform::win32 {

class Beeper final : public platform::Beeper {
  public:
    void Beep() override;
};

}  // namespace platform::win32
