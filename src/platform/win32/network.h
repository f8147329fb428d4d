#pragma once

#include <windows.h>

#include "platform/network.h"

namespace platform::win32 {

class Network final : public platform::Network {
  public:
    // NetRemoteTOD and NetApiBufferFree, which a test may replace where the system lacks them.
    using AskTime = DWORD(WINAPI*)(LPCWSTR server, LPBYTE* buffer);
    using Free = DWORD(WINAPI*)(LPVOID buffer);

    Network();
    Network(AskTime askTime, Free free) : askTime_(askTime), free_(free) {}

    std::optional<TimeOfDay> RemoteTimeOfDay(const std::string& server) const override;
    std::uint32_t CountDialUpConnections(std::uint32_t& count) const override;

  private:
    AskTime askTime_;
    Free free_;
};

}  // namespace platform::win32
