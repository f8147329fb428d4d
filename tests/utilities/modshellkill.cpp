#include "utilities/modshellkill.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using platform::simulated::Machine;
using namespace utilities;
using Lines = std::vector<std::string>;

namespace {

constexpr auto Path = "C:\\Temp\\a.tmp";

struct ShellKillFixture {
    Machine machine;

    ShellKillFixture() { machine.files.Put(Path, "x"); }

    int NumberOf(std::string_view path) {
        return FailureOf([&] { FileIsLocked(machine.files, path); });
    }
};

}  // namespace

TEST_CASE_FIXTURE(ShellKillFixture, "a free file is not locked and is closed again") {
    CHECK_FALSE(FileIsLocked(machine.files, Path));
    CHECK(machine.journal.Lines() ==
          Lines{"OpenForReading \"C:\\Temp\\a.tmp\" -> #1", "CloseFile #1"});
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(ShellKillFixture, "a file that another program has to itself is locked") {
    machine.files.Hold(Path);
    CHECK(FileIsLocked(machine.files, Path));
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(ShellKillFixture,
                  "a file that the program itself reads is locked until it is closed") {
    const auto file = machine.files.OpenForReading(Path);
    CHECK(FileIsLocked(machine.files, Path));
    machine.files.Close(file);
    CHECK_FALSE(FileIsLocked(machine.files, Path));
}

TEST_CASE_FIXTURE(ShellKillFixture, "a file that is not there is no locked file but a failure") {
    CHECK(NumberOf("C:\\Temp\\b.tmp") == runtime::FileNotFound);
    CHECK(NumberOf("D:\\a.tmp") == runtime::PathNotFound);
    CHECK(NumberOf("") == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(ShellKillFixture, "a directory is no locked file but a failure") {
    CHECK(NumberOf("C:\\Temp") == runtime::PathFileAccess);
}

TEST_CASE_FIXTURE(ShellKillFixture,
                  "only denied permission counts as locked, every other failure passes") {
    machine.faults.FailAll("OpenForReading", runtime::PermissionDenied);
    CHECK(FileIsLocked(machine.files, Path));
    for (int number : {5, 52, 53, 69, 71, 75, 76}) {
        machine.faults.FailAll("OpenForReading", number);
        CHECK(NumberOf(Path) == number);
    }
}

TEST_CASE_FIXTURE(ShellKillFixture, "a failure of the closing counts like one of the opening") {
    machine.faults.FailAll("CloseFile", runtime::PermissionDenied);
    CHECK(FileIsLocked(machine.files, Path));
    machine.faults.FailAll("CloseFile", runtime::InvalidProcedureCall);
    CHECK(NumberOf(Path) == runtime::InvalidProcedureCall);
}

TEST_CASE_FIXTURE(ShellKillFixture, "a silent deletion asks nothing and goes to the recycle bin") {
    CHECK(ShellDeleteFile(machine.shell, Path, true));
    CHECK(machine.journal.Lines() == Lines{"SHFileOperationA 3 \"C:\\Temp\\a.tmp\" 0x54 -> 0"});
    CHECK(machine.files.Content(Path) == std::nullopt);
    CHECK(machine.shell.recycleBin == Lines{Path});
}

TEST_CASE_FIXTURE(ShellKillFixture, "a deletion that is not silent lets the system ask") {
    CHECK(ShellDeleteFile(machine.shell, Path, false));
    CHECK(machine.journal.Lines() == Lines{"SHFileOperationA 3 \"C:\\Temp\\a.tmp\" 0x44 -> 0"});
    CHECK(machine.shell.recycleBin == Lines{Path});
}

TEST_CASE_FIXTURE(ShellKillFixture, "a directory is deleted with all in it") {
    machine.files.Put("C:\\Temp\\sub\\b.tmp", "y");
    CHECK(ShellDeleteFile(machine.shell, "C:\\Temp\\sub", true));
    CHECK(machine.files.Content("C:\\Temp\\sub\\b.tmp") == std::nullopt);
    CHECK(machine.files.Content(Path) == "x");
}

TEST_CASE_FIXTURE(ShellKillFixture,
                  "a deletion that the system refuses gives false and no failure") {
    CHECK_FALSE(ShellDeleteFile(machine.shell, "C:\\Temp\\b.tmp", true));
    machine.files.Hold(Path);
    CHECK_FALSE(ShellDeleteFile(machine.shell, Path, true));
    CHECK(machine.files.Content(Path) == "x");
    machine.faults.FailAll("SHFileOperationA", 1223);
    machine.files.Put("C:\\Temp\\c.tmp", "z");
    CHECK_FALSE(ShellDeleteFile(machine.shell, "C:\\Temp\\c.tmp", true));
    CHECK(machine.files.Content("C:\\Temp\\c.tmp") == "z");
    CHECK(machine.shell.recycleBin.empty());
}
