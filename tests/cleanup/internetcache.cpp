#include "cleanup/internetcache.h"

#include <doctest/doctest.h>

#include <new>

#include "platform/simulated/machine.h"
#include "toolkit/form.h"
#include "toolkit/listbox.h"

namespace {

using Lines = std::vector<std::string>;
using platform::simulated::CacheEntry;

struct CacheFixture {
    platform::simulated::Machine machine;
    platform::simulated::InternetCache& cache = machine.internetCache;
    toolkit::Form form{machine.forms, "frmMain", "Quillmore", {}};
    toolkit::ListBox& list = form.Add<toolkit::ListBox>("List1");

    CacheFixture() { list.AddItem("zuvor"); }

    Lines Listed() {
        cleanup::FillCacheList(machine.services.internetCache, machine.services.locale, list);
        // However a listing ends, it leaves nothing open.
        CHECK(cache.HeldBlocks() == 0);
        CHECK(cache.OpenSearches() == 0);
        return list.Items();
    }
    // A cache of the entries a, b and c.
    void AddThree() {
        for (const char* url : {"a", "b", "c"}) cache.Add({.url = url});
    }
};

}  // namespace

TEST_CASE_FIXTURE(CacheFixture,
                  "each entry is asked for its size and read into a block of its own") {
    cache.Add({.url = "http://a.example/"});
    cache.Add({.url = "b"});
    CHECK(Listed() == Lines{"http://a.example/", "b"});
    CHECK(machine.journal.Text() ==
          "FindFirstUrlCacheEntryA \"0\" null 0 -> 122, needs 98\n"
          "LocalAlloc 0 98 -> block 1\n"
          "RtlMoveMemory block 1 from \"b\\0\\0\\0\"\n"
          "FindFirstUrlCacheEntryA null block 1 98 -> search 1\n"
          "RtlMoveMemory 80 bytes from block 1\n"
          "RtlMoveMemory 18 bytes from block 1+80\n"
          "LocalFree block 1\n"
          "FindNextUrlCacheEntryA search 1 null 0 -> 122, needs 82\n"
          "LocalAlloc 0 82 -> block 2\n"
          "RtlMoveMemory block 2 from \"R\\0\\0\\0\"\n"
          "FindNextUrlCacheEntryA search 1 block 2 82 -> 0\n"
          "RtlMoveMemory 80 bytes from block 2\n"
          "RtlMoveMemory 2 bytes from block 2+80\n"
          "LocalFree block 2\n"
          "FindNextUrlCacheEntryA search 1 null 0 -> 259\n"
          "LocalAlloc 0 0 -> block 3\n"
          "FindNextUrlCacheEntryA search 1 block 3 0 -> 259\n"
          "LocalFree block 3\n"
          "FindCloseUrlCache search 1\n");
}

TEST_CASE_FIXTURE(CacheFixture, "an empty cache empties the list and takes no block") {
    CHECK(Listed().empty());
    CHECK(machine.journal.Text() ==
          "FindFirstUrlCacheEntryA \"0\" null 0 -> 259\n"
          "LocalFree null\n"
          "FindCloseUrlCache no search\n");
}

TEST_CASE_FIXTURE(CacheFixture, "a first question that fails with another error ends the listing") {
    AddThree();
    machine.faults.FailAll("FindFirstUrlCacheEntryA", 5);
    CHECK(Listed().empty());
    CHECK(machine.journal.Text() ==
          "FindFirstUrlCacheEntryA \"0\" null 0 -> 5\n"
          "LocalFree null\n"
          "FindCloseUrlCache no search\n");
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a first question that opens a search ends the listing and closes it") {
    AddThree();
    machine.faults.FailAll("FindFirstUrlCacheEntryA", 0);
    CHECK(Listed().empty());
    CHECK(machine.journal.Lines().back() == "FindCloseUrlCache search 1");
}

TEST_CASE_FIXTURE(CacheFixture, "a first entry that cannot be read ends the listing") {
    AddThree();
    // Question, block, and then the reading.
    machine.faults.FailNth(3, 5);
    CHECK(Listed().empty());
    CHECK(machine.journal.Lines().back() == "FindCloseUrlCache no search");
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a first entry that grows between question and reading ends the listing") {
    cache.Add({.url = "a", .growth = 1});
    cache.Add({.url = "b"});
    CHECK(Listed().empty());
    CHECK(machine.journal.Calls("FindFirstUrlCacheEntryA").size() == 2);
    CHECK(machine.journal.Calls("FindNextUrlCacheEntryA").empty());
}

TEST_CASE_FIXTURE(CacheFixture,
                  "a later entry that grows between question and reading ends the list there") {
    cache.Add({.url = "a"});
    cache.Add({.url = "b", .growth = 1});
    cache.Add({.url = "c"});
    CHECK(Listed() == Lines{"a"});
}

TEST_CASE_FIXTURE(CacheFixture, "no memory before the first entry ends the listing") {
    AddThree();
    machine.faults.FailAll("LocalAlloc", 8);
    CHECK(Listed().empty());
    CHECK(machine.journal.Text() ==
          "FindFirstUrlCacheEntryA \"0\" null 0 -> 122, needs 82\n"
          "LocalAlloc 0 82 -> null\n"
          "LocalFree null\n"
          "FindCloseUrlCache no search\n");
}

TEST_CASE_FIXTURE(CacheFixture, "no memory before a later entry ends the list there") {
    AddThree();
    // The calls that may fail: two questions with a block and a reading each, then the third block.
    machine.faults.FailNth(8, 8);
    CHECK(Listed() == Lines{"a", "b"});
    // The cache does not get a block that is none.
    const Lines calls = machine.journal.Lines();
    CHECK(Lines(calls.end() - 3, calls.end()) ==
          Lines{"LocalAlloc 0 82 -> null", "LocalFree null", "FindCloseUrlCache search 1"});
}

TEST_CASE_FIXTURE(CacheFixture, "only entries with the lowest bit of their type are listed") {
    cache.Add({.url = "none", .type = 0});
    cache.Add({.url = "normal"});
    cache.Add({.url = "history", .type = 0x200000});
    cache.Add({.url = "cookie", .type = 0x100000});
    cache.Add({.url = "normal cookie", .type = 0x100001});
    cache.Add({.url = "all but it", .type = 0xFFFFFFFE});
    cache.Add({.url = "all", .type = 0xFFFFFFFF});
    CHECK(Listed() == Lines{"normal", "normal cookie", "all"});
}

TEST_CASE_FIXTURE(CacheFixture, "the block's size is asked anew for each entry") {
    cache.Add({.url = "a", .padding = 5000});
    cache.Add({.url = "b", .type = 0});
    cache.Add({.url = std::string(3000, 'c')});
    CHECK(Listed() == Lines{"a", std::string(3000, 'c')});
    const Lines blocks = machine.journal.Calls("LocalAlloc");
    CHECK(blocks == Lines{"LocalAlloc 0 5082 -> block 1", "LocalAlloc 0 82 -> block 2",
                          "LocalAlloc 0 3081 -> block 3", "LocalAlloc 0 0 -> block 4"});
}

TEST_CASE_FIXTURE(CacheFixture, "an empty URL is an empty line, and so is a missing one") {
    cache.Add({.url = ""});
    cache.Add({.url = "unseen", .hasUrl = false});
    cache.Add({.url = "c"});
    CHECK(Listed() == Lines{"", "", "c"});
}

TEST_CASE_FIXTURE(CacheFixture, "a URL without its NUL ends with its block") {
    cache.Add({.url = "unterminated", .terminated = false});
    cache.Add({.url = "", .terminated = false});
    cache.Add({.url = "c"});
    CHECK(Listed() == Lines{"unterminated", "", "c"});
}

TEST_CASE_FIXTURE(CacheFixture, "a pointer that leads out of the block is an empty line") {
    cache.Add({.url = "before", .strayPointer = 0x14FFFF});
    cache.Add({.url = "far", .strayPointer = 0xFFFFFFFF});
    cache.Add({.url = "low", .strayPointer = 1});
    CHECK(Listed() == Lines{"", "", ""});
}

TEST_CASE_FIXTURE(CacheFixture, "a record shorter than its fixed part is taken as far as it goes") {
    auto& service = machine.services.internetCache;
    const cleanup::CacheBlock block{service.Allocate(4), 4};
    service.Write(block.start, "abc", 4);
    const auto text = [&](std::uint32_t offset) {
        return cleanup::UrlPointerToText(service, machine.locale, block, block.start + offset);
    };
    CHECK(text(0) == "abc");
    CHECK(text(2) == "c");
    CHECK(text(3) == "");
    CHECK(text(4) == "");
}

TEST_CASE_FIXTURE(CacheFixture, "URLs come from the ANSI code page") {
    cache.Add({.url = "http://müller.example/Straße?\xE2\x82\xAC"});
    CHECK(Listed() == Lines{"http://müller.example/Straße?\xE2\x82\xAC"});
    CHECK(machine.journal.Calls("LocalAlloc").front() == "LocalAlloc 0 111 -> block 1");
}

TEST_CASE_FIXTURE(CacheFixture, "thousands of entries take two questions each") {
    constexpr int Many = 5000;
    for (int i = 0; i < Many; ++i) cache.Add({.url = "http://a.example/" + std::to_string(i)});
    const Lines lines = Listed();
    REQUIRE(lines.size() == Many);
    CHECK(lines.front() == "http://a.example/0");
    CHECK(lines.back() == "http://a.example/4999");
    CHECK(machine.journal.Calls("FindFirstUrlCacheEntryA").size() == 2);
    CHECK(machine.journal.Calls("FindNextUrlCacheEntryA").size() == 2 * Many);
    CHECK(machine.journal.Calls("LocalAlloc").size() == Many + 1);
}

TEST_CASE_FIXTURE(CacheFixture,
                  "whichever call fails, the list holds the entries before, and nothing leaks") {
    for (int failing = 1; failing <= 12; ++failing) {
        CAPTURE(failing);
        cache.entries.clear();
        AddThree();
        machine.faults.Clear();
        machine.faults.FailNth(failing, 5);
        const Lines lines = Listed();
        // Three calls to an entry. A question that fails leaves a block without room, so that the
        // reading fails, too; the very last call has nothing more to find.
        CHECK(lines == (failing <= 3   ? Lines{}
                        : failing <= 6 ? Lines{"a"}
                        : failing <= 9 ? Lines{"a", "b"}
                                       : Lines{"a", "b", "c"}));
    }
}

TEST_CASE_FIXTURE(CacheFixture, "a listing that fails in the list leaves nothing open") {
    struct Full final : toolkit::ControlView {
        explicit Full(toolkit::ListBox& on) : list(on) { list.SetView(this); }
        ~Full() override { list.SetView(nullptr); }
        void Refresh(toolkit::Aspect) override {
            if (list.Items().size() == 2) throw std::bad_alloc();
        }
        void Repaint() override {}
        bool PointerIsOver() const override { return false; }
        void TakeFocus() override {}
        void CaptureMouse() override {}
        void MoveFocus(bool) override {}

        toolkit::ListBox& list;
    } full(list);
    AddThree();
    CHECK_THROWS_AS(Listed(), std::bad_alloc);
    CHECK(cache.HeldBlocks() == 0);
    CHECK(cache.OpenSearches() == 0);
}
