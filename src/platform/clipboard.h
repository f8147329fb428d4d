#pragma once

#include <string_view>

namespace platform {

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    // Replaces all that the clipboard holds. False when another program keeps it open or the text
    // cannot be stored.
    virtual bool SetText(std::string_view text) = 0;
};

}  // namespace platform
