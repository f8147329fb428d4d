#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "platform/internetcache.h"

namespace platform::simulated {

class Faults;
class Journal;

// A cache entry, and in what its record departs from the ordinary.
struct CacheEntry {
    std::string url;
    std::uint32_t type = platform::InternetCache::NormalEntry;
    // In use, so that it cannot be deleted.
    bool locked = false;
    // Bytes of its record behind the texts.
    std::uint32_t padding = 0;
    // By so many bytes the record is larger after each time that somebody asks for its size.
    std::uint32_t growth = 0;
    // Whether there is a pointer to the URL, and a NUL behind it. Without the NUL, the block ends.
    bool hasUrl = true;
    bool terminated = true;
    // Where the pointer leads instead, when it is not 0.
    std::uint32_t strayPointer = 0;
};

// A cache whose entries a test seeds, and an address space for the blocks. A block that is touched
// outside its bytes or after its end, and a search used after its end, are mistakes of the program
// (runtime::Mistake).
class InternetCache final : public platform::InternetCache {
  public:
    static constexpr std::uint32_t NoMoreItems = 259;

    InternetCache(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    // Whatever the pattern is, all entries are found, in their order.
    std::uint32_t FindFirst(const char* pattern, Address block, std::uint32_t& size,
                            Handle& search) override;
    bool FindNext(Handle search, Address block, std::uint32_t& size) override;
    void CloseSearch(Handle search) override;
    void Remove(std::string_view url) override;
    // Refuses a gigabyte and more.
    Address Allocate(std::uint32_t size) override;
    void Free(Address block) override;
    void Write(Address to, const void* bytes, std::uint32_t size) override;
    void Read(void* to, Address from, std::uint32_t size) const override;

    void Add(CacheEntry entry) { entries.push_back(std::move(entry)); }
    std::size_t OpenSearches() const { return searches_.size(); }
    std::size_t HeldBlocks() const { return blocks_.size(); }

    std::vector<CacheEntry> entries;

  private:
    struct Block {
        int number = 0;
        std::string bytes;
    };

    // 0 or the error code.
    std::uint32_t Fill(std::size_t index, Address block, std::uint32_t& size);
    // The block in which, or at whose end, the address lies.
    std::map<Address, Block>::const_iterator BlockWith(Address address) const;
    // The bytes from there to the end of their block, at least `size` of them.
    const char* BytesAt(Address address, std::uint32_t size) const;
    std::string NameOf(Address address) const;

    Journal& journal_;
    Faults& faults_;
    std::map<Address, Block> blocks_;
    // The next entry of each open search.
    std::map<Handle, std::size_t> searches_;
    int lastBlock_ = 0;
    Handle lastSearch_ = 0;
    // Where the heap of a program of 32-bit Windows begins as a rule.
    Address nextAddress_ = 0x150000;
};

}  // namespace platform::simulated
