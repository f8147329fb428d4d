#include "platform/simulated/internetcache.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "platform/simulated/faults.h"
#include "platform/simulated/journal.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/wording.h"
#include "runtime/mistake.h"

namespace platform::simulated {
namespace {

constexpr std::uint32_t MostBytes = 0x40000000;

std::uint32_t SizeOf(const CacheEntry& entry) {
    const std::size_t text = ToWesternBytes(entry.url).size() + (entry.terminated ? 1 : 0);
    return static_cast<std::uint32_t>(sizeof(CacheEntryInfo) + text + entry.padding);
}

std::string SearchName(InternetCache::Handle search) {
    return search == 0 ? "no search" : "search " + std::to_string(search);
}

std::string Answer(std::uint32_t code, std::uint32_t size) {
    std::string text = std::to_string(code);
    if (code == InternetCache::InsufficientBuffer) text += ", needs " + std::to_string(size);
    return text;
}

}  // namespace

std::uint32_t InternetCache::FindFirst(const char* pattern, Address block, std::uint32_t& size,
                                       Handle& search) {
    auto line = journal_.Note([&] {
        return "FindFirstUrlCacheEntryA " + (pattern ? Quoted(pattern) : "null") + ' ' +
               NameOf(block) + ' ' + std::to_string(size);
    });
    search = 0;
    std::uint32_t code = 0;
    if (const auto fault = faults_.Check("FindFirstUrlCacheEntryA", pattern ? pattern : "")) {
        code = static_cast<std::uint32_t>(*fault);
    } else {
        code = Fill(0, block, size);
    }
    if (code == 0) {
        searches_[++lastSearch_] = 1;
        search = lastSearch_;
    }
    journal_.Finish(line, [&] { return code == 0 ? SearchName(search) : Answer(code, size); });
    return code;
}

bool InternetCache::FindNext(Handle search, Address block, std::uint32_t& size) {
    auto line = journal_.Note([&] {
        return "FindNextUrlCacheEntryA " + SearchName(search) + ' ' + NameOf(block) + ' ' +
               std::to_string(size);
    });
    const auto place = searches_.find(search);
    if (place == searches_.end()) throw runtime::Mistake("a search that is not open");
    const auto fault = faults_.Check("FindNextUrlCacheEntryA", "");
    const std::uint32_t code =
        fault ? static_cast<std::uint32_t>(*fault) : Fill(place->second, block, size);
    if (code == 0) ++place->second;
    journal_.Finish(line, [&] { return Answer(code, size); });
    return code == 0;
}

void InternetCache::CloseSearch(Handle search) {
    journal_.Note([&] { return "FindCloseUrlCache " + SearchName(search); });
    if (search != 0 && searches_.erase(search) == 0) {
        throw runtime::Mistake("a search closed twice");
    }
}

void InternetCache::Remove(std::string_view url) {
    auto line = journal_.Note([&] { return "DeleteUrlCacheEntryA " + Quoted(url); });
    const std::string bytes = ToWesternBytes(url);
    const auto isMeant = [&](const CacheEntry& entry) {
        return !entry.locked && ToWesternBytes(entry.url) == bytes;
    };
    const auto found = faults_.Check("DeleteUrlCacheEntryA", url)
                           ? entries.end()
                           : std::find_if(entries.begin(), entries.end(), isMeant);
    journal_.Finish(line, [&] { return std::string(found == entries.end() ? "no" : "deleted"); });
    if (found != entries.end()) entries.erase(found);
}

InternetCache::Address InternetCache::Allocate(std::uint32_t size) {
    auto line = journal_.Note([&] { return "LocalAlloc 0 " + std::to_string(size); });
    const bool refused = faults_.Check("LocalAlloc", "") || size >= MostBytes;
    Address address = 0;
    if (!refused) {
        address = nextAddress_;
        blocks_[address] = {++lastBlock_, std::string(size, '\xCD')};
        // Never used again, so that what is freed stays known as that.
        nextAddress_ += (size + 31) / 16 * 16;
    }
    journal_.Finish(line, [&] { return NameOf(address); });
    return address;
}

void InternetCache::Free(Address block) {
    journal_.Note([&] { return "LocalFree " + NameOf(block); });
    if (block != 0 && blocks_.erase(block) == 0) throw runtime::Mistake("a block freed twice");
}

void InternetCache::Write(Address to, const void* bytes, std::uint32_t size) {
    journal_.Note([&] {
        const std::string data(static_cast<const char*>(bytes), size);
        return "RtlMoveMemory " + NameOf(to) + " from " + Quoted(data);
    });
    std::memcpy(const_cast<char*>(BytesAt(to, size)), bytes, size);
}

void InternetCache::Read(void* to, Address from, std::uint32_t size) const {
    journal_.Note(
        [&] { return "RtlMoveMemory " + std::to_string(size) + " bytes from " + NameOf(from); });
    std::memcpy(to, BytesAt(from, size), size);
}

std::map<InternetCache::Address, InternetCache::Block>::const_iterator InternetCache::BlockWith(
    Address address) const {
    const auto behind = blocks_.upper_bound(address);
    if (behind == blocks_.begin()) return blocks_.end();
    const auto block = std::prev(behind);
    return address - block->first <= block->second.bytes.size() ? block : blocks_.end();
}

const char* InternetCache::BytesAt(Address address, std::uint32_t size) const {
    const auto block = BlockWith(address);
    if (block == blocks_.end() || block->second.bytes.size() - (address - block->first) < size) {
        throw runtime::Mistake("memory outside of all blocks");
    }
    return block->second.bytes.data() + (address - block->first);
}

std::string InternetCache::NameOf(Address address) const {
    if (address == 0) return "null";
    const auto block = BlockWith(address);
    if (block == blocks_.end()) return "stray " + Hex(address);
    const std::string name = "block " + std::to_string(block->second.number);
    return address == block->first ? name : name + '+' + std::to_string(address - block->first);
}

std::uint32_t InternetCache::Fill(std::size_t index, Address block, std::uint32_t& size) {
    if (index >= entries.size()) return NoMoreItems;
    CacheEntry& entry = entries[index];
    const std::uint32_t needed = SizeOf(entry);
    if (block == 0 || size < needed) {
        size = needed;
        entry.padding += entry.growth;
        return InsufficientBuffer;
    }
    CacheEntryInfo info;
    info.dwStructSize = sizeof info;
    info.CacheEntryType = entry.type;
    if (entry.hasUrl) info.lpszSourceUrlName = block + std::uint32_t{sizeof info};
    if (entry.strayPointer != 0) info.lpszSourceUrlName = entry.strayPointer;
    char* bytes = const_cast<char*>(BytesAt(block, needed));
    const std::string text = ToWesternBytes(entry.url);
    std::memcpy(bytes, &info, sizeof info);
    std::memcpy(bytes + sizeof info, text.c_str(), text.size() + (entry.terminated ? 1 : 0));
    size = needed;
    return 0;
}

}  // namespace platform::simulated
