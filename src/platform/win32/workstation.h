#pragma once

#include <windows.h>

#include "platform/workstation.h"

namespace platform::win32 {

class Workstation final : public platform::Workstation {
  public:
    // NetWkstaUserEnum and NetApiBufferFree, which a test may replace.
    using Enumerate = DWORD(WINAPI*)(LPWSTR server, DWORD level, LPBYTE* buffer, DWORD wanted,
                                     LPDWORD read, LPDWORD total, LPDWORD resume);
    using Free = DWORD(WINAPI*)(LPVOID buffer);

    // With the system's own calls; stands in a file of its own (workstationcalls.cpp).
    Workstation();
    Workstation(Enumerate enumerate, Free free) : enumerate_(enumerate), free_(free) {}

    std::uint32_t EnumerateUsers(const std::string& server,
                                 UserEnumeration& enumeration) const override;
    void FreeBuffer(std::uintptr_t buffer) const override;
    std::string SystemMessage(std::uint32_t code) const override;

  private:
    Enumerate enumerate_;
    Free free_;
};

}  // namespace platform::win32
