#include "platform/processes.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

constexpr platform::Processes::StartupInfo Hidden{66, 1, 0};
constexpr std::uint32_t NormalPriority = 32;

struct ProcessesFixture {
    contract::TestMachine machine;
    platform::Processes& processes = machine.Services().processes;
};

}  // namespace

TEST_CASE_FIXTURE(ProcessesFixture, "a process is started, waited for and closed once") {
    const auto process = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    REQUIRE(process != 0);
    processes.WaitForEnd(process);
    CHECK(processes.Close(process));
    CHECK_FALSE(processes.Close(process));
}

TEST_CASE_FIXTURE(ProcessesFixture, "a program that is not there gives no process") {
    CHECK(processes.Create(machine.MissingCommand(), NormalPriority, Hidden) == 0);
}

TEST_CASE_FIXTURE(ProcessesFixture, "no process is waited for without delay and cannot be closed") {
    processes.WaitForEnd(0);
    CHECK_FALSE(processes.Close(0));
}

TEST_CASE_FIXTURE(ProcessesFixture, "two processes have handles of their own") {
    const auto first = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    const auto second = processes.Create(machine.EndingCommand(), NormalPriority, Hidden);
    REQUIRE(first != 0);
    REQUIRE(second != 0);
    CHECK(first != second);
    processes.WaitForEnd(second);
    CHECK(processes.Close(first));
    CHECK(processes.Close(second));
}

TEST_CASE_FIXTURE(ProcessesFixture, "a process is started by command line alone") {
    CHECK_NOTHROW(processes.Start(machine.EndingCommand(), 0));
}

TEST_CASE_FIXTURE(ProcessesFixture, "starting a program that is not there is a file not found") {
    CHECK(FailureOf([&] { processes.Start(machine.MissingCommand(), 1); }) ==
          runtime::FileNotFound);
}

TEST_CASE_FIXTURE(ProcessesFixture,
                  "a process that was started is opened by its id until it has ended") {
    using platform::Processes;
    const std::uint32_t id = processes.Start(machine.EndingCommand(), 0);
    REQUIRE(id != 0);
    const auto process = processes.Open(Processes::AllAccess, id);
    REQUIRE(process != 0);
    CHECK(processes.ExitCode(process) == Processes::StillActive);
    processes.WaitForEnd(process);
    std::optional<std::uint32_t> code = Processes::StillActive;
    while (code == Processes::StillActive) code = processes.ExitCode(process);
    CHECK(code.has_value());
    CHECK(processes.Close(process));
    CHECK_FALSE(processes.ExitCode(process));
    CHECK_FALSE(processes.Close(process));
    // The system may keep it for a while.
    const auto later = processes.Open(Processes::AllAccess, id);
    CHECK(processes.ExitCode(later) != Processes::StillActive);
    processes.Close(later);
}

TEST_CASE_FIXTURE(ProcessesFixture,
                  "an id that is none opens no process, and no handle has an exit code") {
    CHECK(processes.Open(platform::Processes::AllAccess, 0) == 0);
    CHECK(processes.Open(platform::Processes::AllAccess, 0x7FFFFFF0) == 0);
    CHECK_FALSE(processes.ExitCode(0));
}
