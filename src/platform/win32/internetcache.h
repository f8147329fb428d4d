#pragma once

#include "platform/internetcache.h"

namespace platform::win32 {

class InternetCache final : public platform::InternetCache {
  public:
    std::uint32_t FindFirst(const char* pattern, Address block, std::uint32_t& size,
                            Handle& search) override;
    bool FindNext(Handle search, Address block, std::uint32_t& size) override;
    void CloseSearch(Handle search) override;
    void Remove(std::string_view url) override;
    Address Allocate(std::uint32_t size) override;
    void Free(Address block) override;
    void Write(Address to, const void* bytes, std::uint32_t size) override;
    void Read(void* to, Address from, std::uint32_t size) const override;
};

}  // namespace platform::win32
