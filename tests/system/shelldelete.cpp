#include "system/shelldelete.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using namespace sys;
using Lines = std::vector<std::string>;

namespace {

constexpr auto DeletedPath = "C:\\Temp\\a.tmp";

struct ShellDeleteFixture {
    Machine machine;

    ShellDeleteFixture() { machine.files.Put(DeletedPath, "x"); }
};

}  // namespace

TEST_CASE_FIXTURE(ShellDeleteFixture,
                  "a silent deletion asks nothing and goes to the recycle bin") {
    CHECK(ShellDeleteFile(machine.shell, DeletedPath, true));
    CHECK(machine.journal.Lines() == Lines{"SHFileOperationA 3 \"C:\\Temp\\a.tmp\" 0x54 -> 0"});
    CHECK(machine.files.Content(DeletedPath) == std::nullopt);
    CHECK(machine.shell.recycleBin == Lines{DeletedPath});
}

TEST_CASE_FIXTURE(ShellDeleteFixture, "a deletion that is not silent lets the system ask") {
    CHECK(ShellDeleteFile(machine.shell, DeletedPath, false));
    CHECK(machine.journal.Lines() == Lines{"SHFileOperationA 3 \"C:\\Temp\\a.tmp\" 0x44 -> 0"});
    CHECK(machine.shell.recycleBin == Lines{DeletedPath});
}

TEST_CASE_FIXTURE(ShellDeleteFixture, "a directory is deleted with all in it") {
    machine.files.Put("C:\\Temp\\sub\\b.tmp", "y");
    CHECK(ShellDeleteFile(machine.shell, "C:\\Temp\\sub", true));
    CHECK(machine.files.Content("C:\\Temp\\sub\\b.tmp") == std::nullopt);
    CHECK(machine.files.Content(DeletedPath) == "x");
}

TEST_CASE_FIXTURE(ShellDeleteFixture,
                  "a deletion that the system refuses gives false and no failure") {
    CHECK_FALSE(ShellDeleteFile(machine.shell, "C:\\Temp\\b.tmp", true));
    machine.files.Hold(DeletedPath);
    CHECK_FALSE(ShellDeleteFile(machine.shell, DeletedPath, true));
    CHECK(machine.files.Content(DeletedPath) == "x");
    machine.faults.FailAll("SHFileOperationA", 1223);
    machine.files.Put("C:\\Temp\\c.tmp", "z");
    CHECK_FALSE(ShellDeleteFile(machine.shell, "C:\\Temp\\c.tmp", true));
    CHECK(machine.files.Content("C:\\Temp\\c.tmp") == "z");
    CHECK(machine.shell.recycleBin.empty());
}
