#pragma once

#include "platform/clipboard.h"

namespace platform::win32 {

class Clipboard final : public platform::Clipboard {
  public:
    bool SetText(std::string_view text) override;
};

}  // namespace platform::win32
