#include "platform/simulated/internetcache.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/mistake.h"

using runtime::Mistake;

namespace {

struct CacheFixture {
    platform::simulated::Machine machine;
    platform::InternetCache& cache = machine.services.internetCache;
    char byte = 'x';
};

}  // namespace

TEST_CASE_FIXTURE(CacheFixture, "memory outside of a block is a mistake, to its byte") {
    const auto block = cache.Allocate(4);
    cache.Write(block + 3, &byte, 1);
    cache.Read(&byte, block, 1);
    CHECK_THROWS_AS(cache.Write(block + 4, &byte, 1), Mistake);
    CHECK_THROWS_AS(cache.Read(&byte, block + 4, 1), Mistake);
    CHECK_THROWS_AS(cache.Read(&byte, block - 1, 1), Mistake);
    CHECK_THROWS_AS(cache.Read(&byte, 0, 1), Mistake);
}

TEST_CASE_FIXTURE(CacheFixture, "a block cannot be touched or freed again after its end") {
    const auto block = cache.Allocate(4);
    cache.Free(block);
    CHECK(cache.Allocate(4) != block);
    CHECK_THROWS_AS(cache.Read(&byte, block, 1), Mistake);
    CHECK_THROWS_AS(cache.Free(block), Mistake);
}

TEST_CASE_FIXTURE(CacheFixture, "blocks do not touch each other") {
    const auto first = cache.Allocate(16);
    const auto second = cache.Allocate(16);
    CHECK(second > first + 16);
    CHECK_THROWS_AS(cache.Read(&byte, first + 16, 1), Mistake);
    CHECK(machine.internetCache.HeldBlocks() == 2);
}

TEST_CASE_FIXTURE(CacheFixture, "a cache that fills a block beyond its bytes is a mistake") {
    machine.internetCache.Add({.url = "a"});
    platform::InternetCache::Handle search = 0;
    std::uint32_t size = 1000;
    const auto block = cache.Allocate(10);
    CHECK_THROWS_AS(cache.FindFirst(nullptr, block, size, search), Mistake);
}

TEST_CASE_FIXTURE(CacheFixture, "a search that is closed cannot go on or be closed again") {
    machine.internetCache.Add({.url = "a"});
    platform::InternetCache::Handle search = 0;
    std::uint32_t size = 1000;
    const auto block = cache.Allocate(size);
    REQUIRE(cache.FindFirst(nullptr, block, size, search) == 0);
    CHECK(machine.internetCache.OpenSearches() == 1);
    cache.CloseSearch(search);
    CHECK(machine.internetCache.OpenSearches() == 0);
    CHECK_THROWS_AS(cache.FindNext(search, block, size), Mistake);
    CHECK_THROWS_AS(cache.CloseSearch(search), Mistake);
}
