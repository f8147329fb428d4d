#pragma once

#include "toolkit/geometry.h"

namespace platform {

// The main screen.
class Display {
  public:
    virtual ~Display() = default;

    // In pixels, with what the taskbar covers.
    virtual toolkit::Size Size() const = 0;
};

}  // namespace platform
