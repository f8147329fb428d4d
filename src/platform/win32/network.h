#pragma once

#include <windows.h>

#include <ras.h>

#include "platform/network.h"

namespace platform::win32 {

class Network final : public platform::Network {
  public:
    // NetRemoteTOD, NetApiBufferFree and RasEnumConnectionsA, which a test may replace where the
    // system lacks them or has nothing to tell.
    using AskTime = DWORD(WINAPI*)(LPCWSTR server, LPBYTE* buffer);
    using Free = DWORD(WINAPI*)(LPVOID buffer);
    using AskConnections = DWORD(WINAPI*)(RASCONNA* records, LPDWORD size, LPDWORD count);

    Network();
    Network(AskTime askTime, Free free, AskConnections askConnections)
        : askTime_(askTime), free_(free), askConnections_(askConnections) {}

    std::optional<TimeOfDay> RemoteTimeOfDay(const std::string& server) const override;
    std::uint32_t CountDialUpConnections(std::uint32_t& count) const override;

  private:
    AskTime askTime_;
    Free free_;
    AskConnections askConnections_;
};

}  // namespace platform::win32
