#include "platform/win32/internetcache.h"

#include <windows.h>

#include <wininet.h>

#include <cstddef>
#include <cstring>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

using Info = INTERNET_CACHE_ENTRY_INFOA;
static_assert(sizeof(Info) == sizeof(CacheEntryInfo));
static_assert(offsetof(Info, lpszSourceUrlName) == offsetof(CacheEntryInfo, lpszSourceUrlName));
static_assert(offsetof(Info, CacheEntryType) == offsetof(CacheEntryInfo, CacheEntryType));
static_assert(InternetCache::NormalEntry == NORMAL_CACHE_ENTRY);
static_assert(InternetCache::InsufficientBuffer == ERROR_INSUFFICIENT_BUFFER);

Info* At(InternetCache::Address block) {
    return reinterpret_cast<Info*>(block);
}

HANDLE SearchOf(InternetCache::Handle search) {
    return reinterpret_cast<HANDLE>(search);
}

}  // namespace

std::uint32_t InternetCache::FindFirst(const char* pattern, Address block, std::uint32_t& size,
                                       Handle& search) {
    DWORD bytes = size;
    const HANDLE found = FindFirstUrlCacheEntryA(pattern, At(block), &bytes);
    const DWORD error = found ? ERROR_SUCCESS : GetLastError();
    size = bytes;
    search = reinterpret_cast<Handle>(found);
    return error;
}

bool InternetCache::FindNext(Handle search, Address block, std::uint32_t& size) {
    DWORD bytes = size;
    const bool found = FindNextUrlCacheEntryA(SearchOf(search), At(block), &bytes);
    size = bytes;
    return found;
}

void InternetCache::CloseSearch(Handle search) {
    FindCloseUrlCache(SearchOf(search));
}

void InternetCache::Remove(std::string_view url) {
    DeleteUrlCacheEntryA(ToAnsi(url).c_str());
}

InternetCache::Address InternetCache::Allocate(std::uint32_t size) {
    return reinterpret_cast<Address>(LocalAlloc(0, size));
}

void InternetCache::Free(Address block) {
    LocalFree(reinterpret_cast<HLOCAL>(block));
}

void InternetCache::Write(Address to, const void* bytes, std::uint32_t size) {
    std::memcpy(reinterpret_cast<void*>(to), bytes, size);
}

void InternetCache::Read(void* to, Address from, std::uint32_t size) const {
    std::memcpy(to, reinterpret_cast<const void*>(from), size);
}

}  // namespace platform::win32
