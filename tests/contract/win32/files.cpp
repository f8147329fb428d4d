#include "platform/files.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/program.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"
#include "support/failureof.h"

// Ways in which a real disk refuses.

namespace {

namespace win32 = platform::win32;

struct WindowsFilesFixture {
    contract::TestMachine machine;
    platform::Files& files = machine.Services().files;

    int NumberOf(std::string_view path) {
        return FailureOf([&] { files.Close(files.OpenForAppend(path)); });
    }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsFilesFixture,
                  "a directory or drive that is not there is a path not found") {
    CHECK(NumberOf(machine.FilePath("absent\\file.log")) == runtime::PathNotFound);
    CHECK(NumberOf(machine.MissingDrive() + "\\file.log") == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(WindowsFilesFixture, "a directory cannot be opened as a file") {
    CHECK(NumberOf(machine.FilePath("")) == runtime::PermissionDenied);
    CHECK(NumberOf(machine.Services().program.Directory()) == runtime::PermissionDenied);
}

TEST_CASE_FIXTURE(WindowsFilesFixture,
                  "a file that another program holds is refused until it lets go") {
    const std::string path = machine.FilePath("held.log");
    {
        const win32::FileHandle held(CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ, 0,
                                                 nullptr, CREATE_ALWAYS, 0, nullptr));
        REQUIRE(held);
        CHECK(NumberOf(path) == runtime::PermissionDenied);
    }
    CHECK(NumberOf(path) == 0);
}

TEST_CASE_FIXTURE(WindowsFilesFixture, "a name that no file can have is an invalid call") {
    CHECK(NumberOf(machine.FilePath("a?b*c.log")) == runtime::InvalidProcedureCall);
}

TEST_CASE_FIXTURE(WindowsFilesFixture, "a file that is open here cannot be written by others") {
    const std::string path = machine.FilePath("open.log");
    const auto file = files.OpenForAppend(path);
    const win32::FileHandle second(CreateFileW(win32::ToWide(path).c_str(), GENERIC_WRITE,
                                               FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                               OPEN_EXISTING, 0, nullptr));
    CHECK_FALSE(second);
    files.Close(file);
}
