#include "platform/internetcache.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "cleanup/internetcacheframe.h"
#include "contract/machine.h"
#include "platform/locale.h"
#include "toolkit/form.h"

namespace {

using platform::CacheEntryInfo;
using platform::InternetCache;
using Lines = std::vector<std::string>;

constexpr std::uint32_t NoMoreItems = 259;
constexpr std::uint32_t Normal = InternetCache::NormalEntry;
constexpr std::uint32_t Cookie = 0x100000;

// The cache as it is where it knows entries under every pattern, as Windows XP does.
class AnyPattern final : public InternetCache {
  public:
    explicit AnyPattern(InternetCache& cache) : cache_(cache) {}

    std::uint32_t FindFirst(const char*, Address block, std::uint32_t& size,
                            Handle& search) override {
        return cache_.FindFirst(nullptr, block, size, search);
    }
    bool FindNext(Handle search, Address block, std::uint32_t& size) override {
        return cache_.FindNext(search, block, size);
    }
    void CloseSearch(Handle search) override { cache_.CloseSearch(search); }
    void Remove(std::string_view url) override { cache_.Remove(url); }
    Address Allocate(std::uint32_t size) override { return cache_.Allocate(size); }
    void Free(Address block) override { cache_.Free(block); }
    void Write(Address to, const void* bytes, std::uint32_t size) override {
        cache_.Write(to, bytes, size);
    }
    void Read(void* to, Address from, std::uint32_t size) const override {
        cache_.Read(to, from, size);
    }

  private:
    InternetCache& cache_;
};

struct CacheFixture {
    contract::TestMachine machine;
    InternetCache& cache = machine.Services().internetCache;
    InternetCache::Handle search = 77;
    std::uint32_t size = 0;

    ~CacheFixture() {
        if (search != 77) cache.CloseSearch(search);
    }

    std::uint32_t First(InternetCache::Address block) {
        return cache.FindFirst(nullptr, block, size, search);
    }
    CacheEntryInfo InfoIn(InternetCache::Address block) {
        CacheEntryInfo info;
        cache.Read(&info, block, sizeof info);
        return info;
    }
    // The bytes of the URL, to its NUL or the block's end.
    std::string UrlIn(InternetCache::Address block) {
        const std::uint32_t start = InfoIn(block).lpszSourceUrlName - block;
        REQUIRE(start >= sizeof(CacheEntryInfo));
        REQUIRE(start < size);
        std::string bytes(size - start, '?');
        cache.Read(bytes.data(), block + start, size - start);
        const auto length = bytes.find('\0');
        CHECK(length != std::string::npos);
        return bytes.substr(0, length);
    }
    // A listing by other means than the program's: one large block for all.
    Lines Urls() {
        constexpr std::uint32_t Large = 8192;
        Lines urls;
        const InternetCache::Address block = cache.Allocate(Large);
        InternetCache::Handle found = 0;
        size = Large;
        for (bool more = cache.FindFirst(nullptr, block, size, found) == 0; more;
             more = cache.FindNext(found, block, size)) {
            urls.push_back(machine.Services().locale.FromAnsi(UrlIn(block)));
            size = Large;
        }
        cache.CloseSearch(found);
        cache.Free(block);
        std::sort(urls.begin(), urls.end());
        return urls;
    }
};

// The frame on a form without a window, and a cache that knows every pattern.
struct FrameFixture : CacheFixture {
    AnyPattern anyPattern{cache};
    toolkit::Form form{machine.Services().forms, "frmMain", "Quillmore", {}};
    cleanup::InternetCacheFrame frame{form, anyPattern, machine.Services().locale,
                                      machine.Services().clock};

    Lines Listed() {
        Lines lines = frame.List1.Items();
        std::sort(lines.begin(), lines.end());
        return lines;
    }
};

}  // namespace

TEST_CASE_FIXTURE(CacheFixture, "an empty cache has no first entry, whatever room there is") {
    machine.AddCacheEntry("http://a.example/", Normal);
    cache.Remove("http://a.example/");
    CHECK(First(0) == NoMoreItems);
    CHECK(search == 0);
    CHECK(size == 0);
    const InternetCache::Address block = cache.Allocate(4096);
    size = 4096;
    CHECK(First(block) == NoMoreItems);
    CHECK(search == 0);
    cache.Free(block);
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a question for the size opens no search and tells what an entry needs") {
    machine.AddCacheEntry("http://a.example/x", Normal);
    CHECK(First(0) == InternetCache::InsufficientBuffer);
    CHECK(search == 0);
    CHECK(size >= sizeof(CacheEntryInfo) + sizeof "http://a.example/x");
}

TEST_CASE_FIXTURE(CacheFixture, "a block of just that size holds the entry with its URL") {
    machine.AddCacheEntry("http://a.example/x", Normal);
    First(0);
    const InternetCache::Address block = cache.Allocate(size);
    cache.Write(block, &size, sizeof size);
    REQUIRE(First(block) == 0);
    CHECK(search != 0);
    CHECK(InfoIn(block).CacheEntryType == Normal);
    CHECK(UrlIn(block) == "http://a.example/x");
    cache.Free(block);
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a block that is a byte short is refused with the size that is needed") {
    machine.AddCacheEntry("http://a.example/x", Normal);
    First(0);
    const std::uint32_t needed = size;
    const InternetCache::Address block = cache.Allocate(needed);
    size = needed - 1;
    CHECK(First(block) == InternetCache::InsufficientBuffer);
    CHECK(search == 0);
    CHECK(size == needed);
    cache.Free(block);
}

TEST_CASE_FIXTURE(CacheFixture, "asking for the next size does not move the search, reading does") {
    for (const char* url : {"http://a.example/", "http://b.example/"}) {
        machine.AddCacheEntry(url, Normal);
    }
    First(0);
    InternetCache::Address block = cache.Allocate(size);
    REQUIRE(First(block) == 0);
    Lines urls{UrlIn(block)};
    cache.Free(block);
    for (int i = 0; i < 3; ++i) {
        size = 0;
        CHECK_FALSE(cache.FindNext(search, 0, size));
        CHECK(size > sizeof(CacheEntryInfo));
    }
    block = cache.Allocate(size);
    REQUIRE(cache.FindNext(search, block, size));
    urls.push_back(UrlIn(block));
    cache.Free(block);
    std::sort(urls.begin(), urls.end());
    CHECK(urls == Lines{"http://a.example/", "http://b.example/"});
    size = 0;
    CHECK_FALSE(cache.FindNext(search, 0, size));
    CHECK(size == 0);
}

TEST_CASE_FIXTURE(CacheFixture, "entries of all types are found, each with its own") {
    machine.AddCacheEntry("http://a.example/", Normal);
    machine.AddCacheEntry("Cookie:ich@b.example/", Cookie | Normal);
    machine.AddCacheEntry("Cookie:ich@c.example/", Cookie);
    CHECK(Urls() == Lines{"Cookie:ich@b.example/", "Cookie:ich@c.example/", "http://a.example/"});
}

TEST_CASE_FIXTURE(CacheFixture, "umlauts stand in the block in the ANSI code page") {
    machine.AddCacheEntry("http://a.example/Grüße", Normal);
    size = 4096;
    const InternetCache::Address block = cache.Allocate(size);
    REQUIRE(First(block) == 0);
    CHECK(UrlIn(block) ==
          "http://a.example/Gr\xFC\xDF"
          "e");
    cache.Free(block);
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a removed entry is gone, one that is in use stays, others are passed over") {
    for (const char* url : {"http://a.example/ä", "http://b.example/", "http://c.example/"}) {
        machine.AddCacheEntry(url, Normal);
    }
    machine.LockCacheEntry("http://b.example/");
    for (const char* url : {"http://a.example/ä", "http://b.example/", "http://d.example/", ""}) {
        cache.Remove(url);
    }
    CHECK(Urls() == Lines{"http://b.example/", "http://c.example/"});
}

TEST_CASE_FIXTURE(CacheFixture, "no search and no block are passed over at their end") {
    cache.CloseSearch(0);
    cache.Free(0);
}

TEST_CASE_FIXTURE(CacheFixture, "a block keeps what is written into it") {
    const InternetCache::Address block = cache.Allocate(8);
    cache.Write(block, "12345678", 8);
    cache.Write(block + 2, "ab", 2);
    char bytes[9] = {};
    cache.Read(bytes, block, 8);
    CHECK(std::string(bytes) == "12ab5678");
    cache.Free(block);
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a block of no bytes is one, a block larger than the memory is none") {
    const InternetCache::Address block = cache.Allocate(0);
    CHECK(block != 0);
    cache.Free(block);
    CHECK(cache.Allocate(0xFFFFFF00) == 0);
}

TEST_CASE_FIXTURE(FrameFixture,
                  "the list shows the normal entries of the store, umlauts included") {
    machine.AddCacheEntry("http://a.example/Grüße", Normal);
    machine.AddCacheEntry("Cookie:ich@b.example/", Cookie | Normal);
    machine.AddCacheEntry("Cookie:ich@c.example/", Cookie);
    frame.cmdUpdateIECache.Press();
    CHECK(Listed() == Lines{"Cookie:ich@b.example/", "http://a.example/Grüße"});
    CHECK(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(FrameFixture,
                  "a list of many entries is complete, and clearing it empties the store") {
    Lines urls;
    for (int i = 1000; i < 1200; ++i) {
        urls.push_back("http://ä.example/" + std::to_string(i));
        machine.AddCacheEntry(urls.back(), Normal);
    }
    frame.cmdUpdateIECache.Press();
    CHECK(Listed() == urls);
    frame.cmdClearIECache.Press();
    CHECK(Listed().empty());
    CHECK(Urls().empty());
    CHECK_FALSE(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(FrameFixture, "clearing keeps cookies, and lists again what is in use") {
    for (const char* url : {"http://a.example/ü", "http://b.example/", "http://c.example/cookie"}) {
        machine.AddCacheEntry(url, Normal);
    }
    machine.AddCacheEntry("Cookie:ich@d.example/", Cookie | Normal);
    machine.LockCacheEntry("http://b.example/");
    frame.cmdUpdateIECache.Press();
    frame.cmdClearIECache.Press();
    CHECK(Listed() == Lines{"Cookie:ich@d.example/", "http://b.example/"});
    CHECK(Urls() == Listed());
}

TEST_CASE_FIXTURE(FrameFixture, "clearing takes the listed cookies along when they are ticked") {
    machine.AddCacheEntry("Cookie:ich@d.example/", Cookie | Normal);
    machine.AddCacheEntry("Cookie:ich@e.example/", Cookie);
    frame.chkDeleteCookies.SetValue(1);
    frame.cmdUpdateIECache.Press();
    frame.cmdClearIECache.Press();
    CHECK(Listed().empty());
    // Never listed, so never deleted.
    CHECK(Urls() == Lines{"Cookie:ich@e.example/"});
}
