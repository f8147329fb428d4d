#include "platform/simulated/memory.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"

using platform::simulated::Machine;

TEST_CASE("blocks are counted while they are held, and the most of them for good") {
    Machine machine;
    auto first = machine.memory.Blanks(100);
    auto second = machine.memory.Blanks(50);
    CHECK(machine.memory.Held() == 300);
    first.reset();
    CHECK(machine.memory.Held() == 100);
    second.reset();
    CHECK(machine.memory.Held() == 0);
    CHECK(machine.memory.Peak() == 300);
    CHECK(machine.journal.Text() ==
          "Memory.Blanks 100\nMemory.Blanks 50\nMemory.GiveBack\nMemory.GiveBack\n");
}

TEST_CASE("a block that is refused is not counted") {
    Machine machine;
    machine.faults.FailAll("Memory.Blanks", runtime::OutOfMemory);
    CHECK_THROWS_AS(machine.memory.Blanks(100), runtime::Failure);
    CHECK(machine.memory.Peak() == 0);
}

TEST_CASE("the memory's bytes are told as they are seeded, also as a negative number") {
    Machine machine;
    CHECK(machine.memory.PhysicalBytes() == 536330240);
    machine.memory.physical.total = 0xFFFFFFFF;
    CHECK(machine.memory.PhysicalBytes() == -1);
    CHECK(machine.journal.Text() == "GlobalMemoryStatus -> 536330240\nGlobalMemoryStatus -> -1\n");
}

TEST_CASE("a system that does not tell its memory's bytes tells 0") {
    Machine machine;
    machine.faults.FailAll("GlobalMemoryStatus", runtime::InvalidProcedureCall);
    CHECK(machine.memory.PhysicalBytes() == 0);
}
