#include "system/filelock.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using platform::simulated::Machine;
using namespace sys;
using Lines = std::vector<std::string>;

namespace {

constexpr auto Path = "C:\\Temp\\a.tmp";

struct FileLockFixture {
    Machine machine;

    FileLockFixture() { machine.files.Put(Path, "x"); }

    int NumberOf(std::string_view path) {
        return FailureOf([&] { FileIsLocked(machine.files, path); });
    }
};

}  // namespace

TEST_CASE_FIXTURE(FileLockFixture, "a free file is not locked and is closed again") {
    CHECK_FALSE(FileIsLocked(machine.files, Path));
    CHECK(machine.journal.Lines() ==
          Lines{"OpenForReading \"C:\\Temp\\a.tmp\" -> #1", "CloseFile #1"});
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(FileLockFixture, "a file that another program has to itself is locked") {
    machine.files.Hold(Path);
    CHECK(FileIsLocked(machine.files, Path));
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(FileLockFixture,
                  "a file that the program itself reads is locked until it is closed") {
    const auto file = machine.files.OpenForReading(Path);
    CHECK(FileIsLocked(machine.files, Path));
    machine.files.Close(file);
    CHECK_FALSE(FileIsLocked(machine.files, Path));
}

TEST_CASE_FIXTURE(FileLockFixture, "a file that is not there is no locked file but a failure") {
    CHECK(NumberOf("C:\\Temp\\b.tmp") == runtime::FileNotFound);
    CHECK(NumberOf("D:\\a.tmp") == runtime::PathNotFound);
    CHECK(NumberOf("") == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FileLockFixture, "a directory is no locked file but a failure") {
    CHECK(NumberOf("C:\\Temp") == runtime::PathFileAccess);
}

TEST_CASE_FIXTURE(FileLockFixture,
                  "only denied permission counts as locked, every other failure passes") {
    machine.faults.FailAll("OpenForReading", runtime::PermissionDenied);
    CHECK(FileIsLocked(machine.files, Path));
    for (int number : {5, 52, 53, 69, 71, 75, 76}) {
        machine.faults.FailAll("OpenForReading", number);
        CHECK(NumberOf(Path) == number);
    }
}

TEST_CASE_FIXTURE(FileLockFixture, "a failure of the closing counts like one of the opening") {
    machine.faults.FailAll("CloseFile", runtime::PermissionDenied);
    CHECK(FileIsLocked(machine.files, Path));
    machine.faults.FailAll("CloseFile", runtime::InvalidProcedureCall);
    CHECK(NumberOf(Path) == runtime::InvalidProcedureCall);
}
