#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace contract {

// Entries in the system's Internet cache. URLs are in the ANSI code page.
class CacheEntries {
  public:
    CacheEntries() = default;
    ~CacheEntries();
    CacheEntries(const CacheEntries&) = delete;
    CacheEntries& operator=(const CacheEntries&) = delete;

    // Empties the cache the first time. Throws std::runtime_error when the system takes none.
    void Add(const std::string& url, std::uint32_t type);
    void Lock(const std::string& url);

  private:
    bool used_ = false;
    std::vector<std::string> locked_;
};

}  // namespace contract
