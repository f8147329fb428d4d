#include "cleanup/internetcache.h"

#include <algorithm>
#include <utility>

#include "platform/locale.h"
#include "toolkit/listbox.h"

namespace cleanup {
namespace {

using platform::CacheEntryInfo;
using platform::InternetCache;

// Stands at the start of a block when the cache gets it: the block's size, by which the cache knows
// the record. Behind the last entry the size is 0, and the block has no room even for that.
InternetCache::Address MakeBlock(InternetCache& cache, std::uint32_t size) {
    const InternetCache::Address block = cache.Allocate(size);
    if (block != 0 && size >= sizeof size) cache.Write(block, &size, sizeof size);
    return block;
}

// The search of a listing and the block that it reads into, given back whatever ends it.
struct Reading {
    explicit Reading(InternetCache& on) : cache(on) {}
    ~Reading() {
        cache.Free(block.start);
        cache.CloseSearch(search);
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    InternetCache& cache;
    InternetCache::Handle search = 0;
    CacheBlock block;
};

void AddEntry(const InternetCache& cache, const platform::Locale& locale, const CacheBlock& block,
              toolkit::ListBox& list) {
    CacheEntryInfo entry;
    const auto size = std::min(block.size, std::uint32_t{sizeof entry});
    cache.Read(&entry, block.start, size);
    if ((entry.CacheEntryType & InternetCache::NormalEntry) == 0) return;
    list.AddItem(UrlPointerToText(cache, locale, block, entry.lpszSourceUrlName));
}

}  // namespace

std::string UrlPointerToText(const InternetCache& cache, const platform::Locale& locale,
                             const CacheBlock& block, InternetCache::Address pointer) {
    if (pointer < block.start || pointer - block.start >= block.size) return "";
    std::string bytes(block.size - (pointer - block.start), '\0');
    cache.Read(bytes.data(), pointer, static_cast<std::uint32_t>(bytes.size()));
    return locale.FromAnsi(bytes.substr(0, bytes.find('\0')));
}

// Two calls for each entry, one that asks for its size and one that reads it into a new block. An
// entry that has grown between the two ends the list, as does a block that cannot be had.
void FillCacheList(InternetCache& cache, const platform::Locale& locale, toolkit::ListBox& list) {
    list.Clear();
    Reading reading(cache);
    InternetCache::Handle& search = reading.search;
    CacheBlock& block = reading.block;
    bool found = false;
    // The first question bears the pattern "0" and the reading none, on purpose: a cache that knows
    // nothing by that pattern, such as Wine's, is not listed at all.
    if (cache.FindFirst("0", 0, block.size, search) == InternetCache::InsufficientBuffer) {
        block.start = MakeBlock(cache, block.size);
        std::uint32_t size = block.size;
        found = block.start != 0 && cache.FindFirst(nullptr, block.start, size, search) == 0;
    }
    while (found) {
        AddEntry(cache, locale, block, list);
        cache.Free(std::exchange(block.start, 0));
        block.size = 0;
        cache.FindNext(search, 0, block.size);
        block.start = MakeBlock(cache, block.size);
        std::uint32_t size = block.size;
        found = block.start != 0 && cache.FindNext(search, block.start, size);
    }
}

}  // namespace cleanup
