#pragma once

#include <optional>

#include "platform/session.h"

namespace platform::win32 {

// The flags of ExitWindowsEx for an action of the session object; nothing for an unknown one.
std::optional<std::uint32_t> ExitFlags(std::int32_t action, std::int32_t force);

class Session final : public platform::Session {
  public:
    void ExitSession(std::int32_t action, std::int32_t force) override;
};

}  // namespace platform::win32
