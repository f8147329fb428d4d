#pragma once

#include <cstdint>

namespace platform {

// The session object: the program's only means of ending the user's session.
class Session {
  public:
    static constexpr std::int32_t Restart = 2;
    static constexpr std::int32_t LogOff = 4;
    static constexpr std::int32_t ShutDown = 8;

    virtual ~Session() = default;

    // Ends the session; `force` 1 asks no application. The platform's refusal is no failure.
    // Other action numbers do nothing.
    virtual void ExitSession(std::int32_t action, std::int32_t force) = 0;
};

}  // namespace platform
