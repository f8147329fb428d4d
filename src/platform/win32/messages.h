#pragma once

#include "platform/messages.h"

namespace platform::win32 {

class Messages final : public platform::Messages {
  public:
    int Show(std::string_view text, int style, std::string_view title) override;
};

}  // namespace platform::win32
