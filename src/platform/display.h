#pragma once

#include <string>
#include <string_view>

#include "toolkit/geometry.h"

namespace toolkit {
class Form;
}

namespace platform {

// The main screen.
class Display {
  public:
    virtual ~Display() = default;

    // In pixels, with what the taskbar covers.
    virtual toolkit::Size Size() const = 0;

    // PathCompactPathA as the form writes text: where the path is wider than that many pixels, its
    // middle is left out. The answer is the whole buffer; what stands behind a NUL in it is only
    // what was there before.
    virtual std::string CompactPath(const toolkit::Form& form, std::string_view path,
                                    int width) const = 0;
};

}  // namespace platform
