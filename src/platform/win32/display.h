#pragma once

#include "platform/display.h"

namespace platform::win32 {

class Display final : public platform::Display {
  public:
    toolkit::Size Size() const override;
};

}  // namespace platform::win32
