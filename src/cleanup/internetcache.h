#pragma once

#include <cstdint>
#include <string>

#include "platform/internetcache.h"

namespace platform {
class Locale;
}
namespace toolkit {
class ListBox;
}

namespace cleanup {

// A block of memory that the cache has filled.
struct CacheBlock {
    platform::InternetCache::Address start = 0;
    std::uint32_t size = 0;
};

// The text at a pointer into the block, up to its NUL or else the block's end. "" where the pointer
// leads out of the block.
std::string UrlPointerToText(const platform::InternetCache& cache, const platform::Locale& locale,
                             const CacheBlock& block, platform::InternetCache::Address pointer);

// Clears the list and adds the source URL of each normal entry of the system's Internet cache, one
// a line; cookies and the history are listed as far as they are normal entries. Whatever ends the
// search early ends the list there, in silence.
void FillCacheList(platform::InternetCache& cache, const platform::Locale& locale,
                   toolkit::ListBox& list);

}  // namespace cleanup
