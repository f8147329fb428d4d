#include "system/processwait.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using sys::ShellWait;

TEST_CASE("a process is started with the program's own startup record, awaited and closed") {
    Machine machine;
    CHECK(ShellWait(machine.processes, "C:\\WINDOWS\\system32\\restore\\rstrui.exe", true));
    REQUIRE(machine.processes.All().size() == 1);
    const auto& started = machine.processes.All().front();
    CHECK(started.commandLine == "C:\\WINDOWS\\system32\\restore\\rstrui.exe");
    CHECK(started.creationFlags == 32);
    CHECK(started.startup.cb == 66);
    CHECK(started.startup.dwFlags == 1);
    CHECK(started.startup.wShowWindow == 1);
    CHECK(started.waitedFor);
    CHECK(started.closed);
}

TEST_CASE("a process that is not to be shown starts with a hidden window") {
    Machine machine;
    ShellWait(machine.processes, "command.com", false);
    REQUIRE(machine.processes.All().size() == 1);
    CHECK(machine.processes.All().front().startup.wShowWindow == 0);
    CHECK(machine.processes.All().front().startup.dwFlags == 1);
}

TEST_CASE("a command line with blanks is passed on as it stands, without quotes") {
    Machine machine;
    ShellWait(machine.processes, "C:\\My Windows\\a.exe /x", true);
    REQUIRE(machine.processes.All().size() == 1);
    CHECK(machine.processes.All().front().commandLine == "C:\\My Windows\\a.exe /x");
}

TEST_CASE("the calls come in order: start, wait, close") {
    Machine machine;
    ShellWait(machine.processes, "a.exe", true);
    const auto& lines = machine.journal.Lines();
    REQUIRE(lines.size() == 3);
    CHECK(lines[0].starts_with("CreateProcessA"));
    CHECK(lines[1].starts_with("WaitForSingleObject"));
    CHECK(lines[2].starts_with("CloseHandle"));
}

TEST_CASE("a process that cannot be started is awaited and closed all the same, and gives false") {
    Machine machine;
    machine.faults.FailOn("missing.exe", 2);
    CHECK_FALSE(ShellWait(machine.processes, "missing.exe", true));
    CHECK(machine.journal.Calls("WaitForSingleObject").size() == 1);
    CHECK(machine.journal.Calls("CloseHandle").size() == 1);
}
