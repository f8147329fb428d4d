#include "contract/win32/cacheentries.h"

#include <windows.h>

#include <wininet.h>

#include <stdexcept>

namespace contract {
namespace {

// Larger than any record here.
struct Record {
    Record() { info.dwStructSize = sizeof info; }
    INTERNET_CACHE_ENTRY_INFOA info = {};
    char texts[4096] = {};
};

// What is deleted is not found any more, so each search is for the first one again.
void EmptyCache() {
    for (;;) {
        Record record;
        DWORD size = sizeof record;
        const HANDLE search = FindFirstUrlCacheEntryA(nullptr, &record.info, &size);
        if (!search) return;
        FindCloseUrlCache(search);
        if (!DeleteUrlCacheEntryA(record.info.lpszSourceUrlName)) return;
    }
}

}  // namespace

CacheEntries::~CacheEntries() {
    for (const std::string& url : locked_) UnlockUrlCacheEntryFileA(url.c_str(), 0);
    if (used_) EmptyCache();
}

void CacheEntries::Add(const std::string& url, std::uint32_t type) {
    if (!used_) EmptyCache();
    used_ = true;
    char file[MAX_PATH] = {};
    if (!CreateUrlCacheEntryA(url.c_str(), 1, "txt", file, 0)) {
        throw std::runtime_error("no room in the cache");
    }
    CloseHandle(CreateFileA(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    if (!CommitUrlCacheEntryA(url.c_str(), file, {}, {}, type, nullptr, 0, "txt", nullptr)) {
        throw std::runtime_error("the cache takes no entry");
    }
}

void CacheEntries::Lock(const std::string& url) {
    Record record;
    DWORD size = sizeof record;
    if (!RetrieveUrlCacheEntryFileA(url.c_str(), &record.info, &size, 0)) {
        throw std::runtime_error("no such entry to lock");
    }
    locked_.push_back(url);
}

}  // namespace contract
