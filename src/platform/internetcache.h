#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

// INTERNET_CACHE_ENTRY_INFO as 32-bit Windows lays it out. A block that the cache fills begins with
// it; the texts that it points to follow in the same block, in the ANSI code page.
struct CacheEntryInfo {
    std::uint32_t dwStructSize = 0;
    std::uint32_t lpszSourceUrlName = 0;
    std::uint32_t lpszLocalFileName = 0;
    std::uint32_t CacheEntryType = 0;
    // Counts, sizes, times, header data and the file's extension.
    std::uint32_t rest[16] = {};
};
static_assert(sizeof(CacheEntryInfo) == 80);

// The cache in which WinInet keeps what it has fetched, and the blocks of memory in which it tells
// of its entries.
class InternetCache {
  public:
    // A search under way; 0 is none.
    using Handle = std::uintptr_t;
    // A place in the program's memory as 32-bit Windows counts it; 0 is none.
    using Address = std::uint32_t;

    static constexpr std::uint32_t InsufficientBuffer = 122;
    // In CacheEntryType.
    static constexpr std::uint32_t NormalEntry = 1;

    virtual ~InternetCache() = default;

    // FindFirstUrlCacheEntryA. Fills the block, which has `size` bytes, with the first entry and
    // puts the handle of a search in `search`, which must be closed. Otherwise returns the system's
    // error code, and `search` is 0; with InsufficientBuffer `size` becomes what the entry needs.
    virtual std::uint32_t FindFirst(const char* pattern, Address block, std::uint32_t& size,
                                    Handle& search) = 0;

    // FindNextUrlCacheEntryA. The search moves on only when the entry was filled in; false when it
    // was not, with `size` as above. Behind the last entry `size` stays as it is.
    virtual bool FindNext(Handle search, Address block, std::uint32_t& size) = 0;

    // FindCloseUrlCache; 0 is passed over.
    virtual void CloseSearch(Handle search) = 0;

    // DeleteUrlCacheEntryA. Its answer is not looked at, so an entry that is not there, or that is
    // in use, is passed over.
    virtual void Remove(std::string_view url) = 0;

    // LocalAlloc without flags: the content is anything. A block may have 0 bytes. Returns 0 when
    // there is no memory to have.
    virtual Address Allocate(std::uint32_t size) = 0;
    // LocalFree; 0 is passed over.
    virtual void Free(Address block) = 0;

    // RtlMoveMemory, to and from a block.
    virtual void Write(Address to, const void* bytes, std::uint32_t size) = 0;
    virtual void Read(void* to, Address from, std::uint32_t size) const = 0;
};

}  // namespace platform
