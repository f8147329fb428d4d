// The Internet cache's rows: records of any bytes and sizes in blocks of memory, of which nothing
// outside may be touched.
#include <cstring>
#include <map>
#include <optional>

#include "cleanup/internetcacheframe.h"
#include "fuzz/target.h"
#include "platform/internetcache.h"
#include "platform/simulated/machine.h"
#include "runtime/encoding.h"
#include "toolkit/form.h"

namespace fuzz {
namespace {

using platform::InternetCache;

struct CacheRecord {
    // What a question for its size says, and what reading it takes.
    std::uint32_t told = 0;
    std::uint32_t needed = 0;
    std::string bytes;
    // The pointer to its address leads so far into the block, unless the bytes say where.
    std::optional<std::uint32_t> offset;
};

constexpr std::uint32_t MostBytes = 100'000;
constexpr std::size_t PointerPlace = 4;
constexpr std::size_t TypePlace = 12;
constexpr char Garbage = '\xCD';

// Writes a number as far as there is room for it.
void PutNumber(std::string& block, std::size_t place, std::uint32_t number) {
    for (std::size_t i = place; i < place + 4 && i < block.size(); ++i, number >>= 8) {
        block[i] = static_cast<char>(number & 0xFF);
    }
}

std::uint32_t NumberAt(const std::string& block, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t i = place + 4; i-- > place;) {
        number = number << 8 | (i < block.size() ? static_cast<unsigned char>(block[i]) : 0);
    }
    return number;
}

// A cache of such records. Each block is memory of its own, so that the sanitizers watch its ends.
class RecordCache final : public InternetCache {
  public:
    std::vector<CacheRecord> records;
    std::vector<std::string> removed;
    std::map<Address, std::string> blocks;
    int searches = 0;

    std::uint32_t FindFirst(const char*, Address block, std::uint32_t& size,
                            Handle& search) override {
        search = 0;
        next_ = 0;
        if (records.empty()) return 259;
        if (!Fill(block, size)) return InsufficientBuffer;
        ++searches;
        search = 1;
        return 0;
    }
    bool FindNext(Handle search, Address block, std::uint32_t& size) override {
        Require(search == 1 && searches == 1, "a search that is none");
        return next_ < records.size() && Fill(block, size);
    }
    void CloseSearch(Handle search) override {
        if (search == 0) return;
        Require(--searches == 0, "a search closed twice");
    }
    void Remove(std::string_view url) override { removed.emplace_back(url); }
    Address Allocate(std::uint32_t size) override {
        if (size >= MostBytes) return 0;
        const Address address = nextAddress_;
        nextAddress_ += size + 64;
        blocks[address] = std::string(size, Garbage);
        return address;
    }
    void Free(Address block) override {
        Require(block == 0 || blocks.erase(block) == 1, "a block freed twice");
    }
    void Write(Address to, const void* bytes, std::uint32_t size) override {
        std::memcpy(At(to, size), bytes, size);
    }
    void Read(void* to, Address from, std::uint32_t size) const override {
        std::memcpy(to, const_cast<RecordCache*>(this)->At(from, size), size);
    }

    // What the block holds for its record.
    static std::string Filled(const CacheRecord& record, Address address) {
        std::string block(record.told, Garbage);
        PutNumber(block, 0, record.told);
        std::copy_n(record.bytes.begin(),
                    std::min({record.bytes.size(), block.size(), std::size_t{record.needed}}),
                    block.begin());
        if (record.offset) PutNumber(block, PointerPlace, address + *record.offset);
        return block;
    }

  private:
    // A question, or a block that is too small, is told the size.
    bool Fill(Address block, std::uint32_t& size) {
        const CacheRecord& record = records[next_];
        if (block == 0 || size < record.needed) {
            size = record.told;
            return false;
        }
        Require(size == record.told, "another size than the told one");
        std::string& bytes = blocks.at(block);
        Require(size < 4 || NumberAt(bytes, 0) == size, "the block does not begin with its size");
        bytes = Filled(record, block);
        ++next_;
        return true;
    }

    char* At(Address address, std::uint32_t size) {
        auto block = blocks.upper_bound(address);
        Require(block != blocks.begin(), "memory of nobody");
        --block;
        const std::uint64_t offset = address - block->first;
        Require(offset + size <= block->second.size(), "memory outside of the block");
        return block->second.data() + offset;
    }

    std::size_t next_ = 0;
    Address nextAddress_ = 0x150000;
};

CacheRecord TakeRecord(Input& bytes) {
    CacheRecord record;
    const std::uint8_t kind = bytes.Byte();
    record.bytes = bytes.Piece();
    if (kind & 1) {
        record.bytes.resize(std::max<std::size_t>(record.bytes.size(), TypePlace + 4));
        record.bytes[TypePlace] |= 1;
    }
    // Mostly as large as it is, at times of any size, and at times grown meanwhile.
    record.told = static_cast<std::uint32_t>(record.bytes.size());
    if (kind & 2) record.told = bytes.Number(kind & 4 ? 1 : 4);
    record.needed = record.told;
    if ((kind & 0x30) == 0x30) record.needed += bytes.Byte();
    if (kind & 8) record.offset = bytes.Number(kind & 4 ? 4 : 1);
    return record;
}

// One after the other, until one cannot be had.
std::vector<std::string> UrlsOf(const std::vector<CacheRecord>& records) {
    std::vector<std::string> urls;
    InternetCache::Address address = 0x150000;
    for (const CacheRecord& record : records) {
        if (record.told >= MostBytes || record.needed > record.told) break;
        const std::string block = RecordCache::Filled(record, address);
        if (NumberAt(block, TypePlace) & 1) {
            const std::uint64_t pointer = NumberAt(block, PointerPlace);
            const bool leadsIn = pointer >= address && pointer < address + block.size();
            const std::string bytes =
                leadsIn ? block.substr(static_cast<std::size_t>(pointer - address)) : "";
            urls.push_back(runtime::FromWestern(bytes.substr(0, bytes.find('\0'))));
        }
        address += record.told + 64;
    }
    return urls;
}

}  // namespace

FUZZ_TARGET(cacheentries) {
    Input bytes(input);
    const bool withCookies = bytes.Flag();
    RecordCache cache;
    while (!bytes.AtEnd()) cache.records.push_back(TakeRecord(bytes));
    const auto expected = UrlsOf(cache.records);

    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmMain", "", {});
    cleanup::InternetCacheFrame frame(form, cache, machine.services.locale, machine.clock);
    frame.Fill();
    Require(frame.List1.Items() == expected, "another list");
    Require(cache.blocks.empty() && cache.searches == 0, "a block or a search is kept");
    Require(cache.removed.empty(), "listing removes");
    frame.EnableClear();
    Require(frame.cmdClearIECache.Enabled() == !expected.empty(), "the button");

    std::vector<std::string> wanted;
    for (const std::string& url : expected) {
        if (withCookies || url.find("Cookie") == std::string::npos) wanted.push_back(url);
    }
    frame.chkDeleteCookies.SetValue(withCookies ? 1 : 0);
    if (!expected.empty()) frame.cmdClearIECache.Press();
    Require(cache.removed == wanted, "other entries are removed");
    Require(cache.blocks.empty() && cache.searches == 0, "a block or a search is kept");
    Require(frame.prgbarIE1.Value() == 0 && form.Pointer() == toolkit::DefaultPointer,
            "progress or pointer stay");
}

}  // namespace fuzz
