#include "platform/memory.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <string>

#include "contract/machine.h"
#include "platform/display.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

// 40 MB, as the program's smallest block.
constexpr std::size_t Characters = 20000000;
constexpr double BlockBytes = 2.0 * Characters;

struct MemoryFixture {
    contract::TestMachine machine;
    platform::Memory& memory = machine.Services().memory;

    // What the process holds in memory, in parts of the block.
    double Resident() { return static_cast<double>(machine.ResidentBytes()) / BlockBytes; }
};

}  // namespace

TEST_CASE_FIXTURE(MemoryFixture,
                  "a block is really written, and goes back to the system at its end") {
    const double before = Resident();
    auto block = memory.Blanks(Characters);
    CHECK(Resident() - before > 0.98);
    CHECK(Resident() - before < 1.1);
    block.reset();
    CHECK(Resident() - before < 0.02);
}

TEST_CASE_FIXTURE(MemoryFixture, "two blocks are held side by side") {
    const double before = Resident();
    auto first = memory.Blanks(Characters / 2);
    auto second = memory.Blanks(Characters / 2);
    CHECK(Resident() - before > 0.98);
    first.reset();
    CHECK(Resident() - before < 0.6);
}

TEST_CASE_FIXTURE(MemoryFixture, "a block of no characters is one all the same") {
    CHECK(memory.Blanks(0) != nullptr);
}

TEST_CASE_FIXTURE(MemoryFixture, "a block that no program has room for is refused") {
    // The last one is more characters than a text can count, the first more than fit beside it.
    for (const std::size_t characters : {0x3FFFFF00u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        CAPTURE(characters);
        const double before = Resident();
        CHECK(FailureOf([&] { memory.Blanks(characters); }) == runtime::OutOfMemory);
        CHECK(Resident() - before < 0.02);
    }
}

TEST_CASE_FIXTURE(MemoryFixture,
                  "the memory is told in decimal digits and is at least 64 megabytes") {
    const std::string total = memory.TotalPhysical();
    REQUIRE(!total.empty());
    CHECK(std::all_of(total.begin(), total.end(), [](char c) { return std::isdigit(c) != 0; }));
    CHECK(std::stoull(total) >= 64ull << 20);
}

TEST_CASE_FIXTURE(MemoryFixture,
                  "the memory's bytes are the whole of it, or the most that 31 bits tell") {
    constexpr std::uint64_t Most = std::numeric_limits<std::int32_t>::max();
    const std::uint64_t total = std::stoull(memory.TotalPhysical());
    const std::int32_t bytes = memory.PhysicalBytes();
    if (total <= Most) {
        CHECK(static_cast<std::uint64_t>(bytes) == total);
    } else {
        const bool beyond = bytes < 0 || static_cast<std::uint64_t>(bytes) == Most;
        CHECK(beyond);
    }
}

TEST_CASE_FIXTURE(MemoryFixture, "the screen is no smaller than 640 by 480") {
    const toolkit::Size size = machine.Services().display.Size();
    CHECK(size.width >= 640);
    CHECK(size.height >= 480);
}
