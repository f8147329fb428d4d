#include "tweaks/memoryrelease.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "toolkit/form.h"

using Lines = std::vector<std::string>;
using tweaks::BlockSizeFor;

namespace {

struct Released {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    const Lines& lines = machine.journal.Lines();

    void Release() { tweaks::ReleaseMemory(machine.forms, machine.memory, machine.locale); }
};

}  // namespace

TEST_CASE("half of the memory decides on the block, and a limit itself belongs to the row below") {
    const runtime::NumberSigns german;
    const std::pair<const char*, std::size_t> rows[] = {
        {"4294967296", 120000000}, {"512000002", 120000000}, {"512000001", 120000000},
        {"512000000", 90000000},   {"511999999", 90000000},  {"256000001", 90000000},
        {"256000000", 48000000},   {"128000001", 48000000},  {"128000000", 20000000},
        {"1", 20000000},           {"0", 20000000},          {"-1", 20000000},
    };
    for (const auto& [total, characters] : rows) {
        CAPTURE(total);
        CHECK(BlockSizeFor(total, german) == characters);
    }
}

TEST_CASE("a total that is no number counts as little memory") {
    for (const char* total : {"", "viel", "536330240 Bytes", "1e999"}) {
        CAPTURE(total);
        CHECK(BlockSizeFor(total, {}) == 20000000);
    }
}

TEST_CASE_FIXTURE(Released, "the block is taken under the hourglass and given back on leaving") {
    Release();
    CHECK(lines == Lines{"Pointer 11", "Memory.TotalPhysical -> \"536330240\"",
                         "Memory.Blanks 120000000", "Pointer 0", "Memory.GiveBack"});
    CHECK(machine.memory.Peak() == 240000000);
    CHECK(machine.memory.Held() == 0);
}

TEST_CASE_FIXTURE(Released, "a form's own hourglass stands before and after") {
    form.SetPointer(toolkit::Hourglass);
    Release();
    CHECK(form.ShownPointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Released, "the screen's pointer is the default afterwards, whatever it was") {
    machine.forms.SetScreenPointer(toolkit::Hourglass);
    Release();
    CHECK(form.ShownPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Released, "half exactly at a limit takes the smaller block") {
    machine.memory.physical.total = 512000000;
    Release();
    CHECK(machine.memory.Peak() == 180000000);
}

TEST_CASE_FIXTURE(Released, "a second press repeats the same work and keeps nothing of the first") {
    Release();
    const Lines first = lines;
    machine.journal.Clear();
    Release();
    CHECK(lines == first);
    CHECK(machine.memory.Peak() == 240000000);
    CHECK(machine.memory.Held() == 0);
}

TEST_CASE_FIXTURE(Released, "a block that cannot be had is passed over in silence") {
    machine.faults.FailAll("Memory.Blanks", runtime::OutOfMemory);
    Release();
    CHECK(lines == Lines{"Pointer 11", "Memory.TotalPhysical -> \"536330240\"",
                         "Memory.Blanks 120000000 -> failure 7", "Pointer 0"});
    CHECK(machine.memory.Peak() == 0);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Released, "a system that does not tell its memory gets the smallest block") {
    machine.faults.FailAll("Memory.TotalPhysical", runtime::CannotCreateObject);
    Release();
    CHECK(machine.memory.Peak() == 40000000);
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
    CHECK(machine.messages.Shown().empty());
}
