#include "platform/processes.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"

namespace {

constexpr platform::Processes::StartupInfo Hidden{66, 1, 0};
constexpr std::uint32_t NormalPriority = 32;

struct Fixture {
    contract::TestMachine machine;
    platform::Processes& processes = machine.Services().processes;
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a process is started, waited for and closed once") {
    const auto process = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    REQUIRE(process != 0);
    processes.WaitForEnd(process);
    CHECK(processes.Close(process));
    CHECK_FALSE(processes.Close(process));
}

TEST_CASE_FIXTURE(Fixture, "a program that is not there gives no process") {
    CHECK(processes.Create(machine.MissingCommand(), NormalPriority, Hidden) == 0);
}

TEST_CASE_FIXTURE(Fixture, "no process is waited for without delay and cannot be closed") {
    processes.WaitForEnd(0);
    CHECK_FALSE(processes.Close(0));
}

TEST_CASE_FIXTURE(Fixture, "two processes have handles of their own") {
    const auto first = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    const auto second = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    REQUIRE(first != 0);
    REQUIRE(second != 0);
    CHECK(first != second);
    processes.WaitForEnd(second);
    CHECK(processes.Close(first));
    CHECK(processes.Close(second));
}

TEST_CASE_FIXTURE(Fixture, "a process is started by command line alone") {
    CHECK_NOTHROW(processes.Start(machine.EndingCommand(), 0));
}

TEST_CASE_FIXTURE(Fixture, "starting a program that is not there is a file not found") {
    try {
        processes.Start(machine.MissingCommand(), 1);
        FAIL("it was started");
    } catch (const runtime::Failure& failure) {
        CHECK(failure.number == runtime::FileNotFound);
    }
}
