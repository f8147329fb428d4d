#include "platform/simulated/shell.h"

#include <doctest/doctest.h>

#include <stdexcept>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/form.h"

using platform::simulated::FolderDialog;
using Lines = std::vector<std::string>;

namespace {

struct ShellFixture {
    platform::simulated::Machine machine;
    platform::Shell& shell = machine.services.shell;
    toolkit::Form owner{machine.forms, "frmOwner", "Fenster", {}};
};

}  // namespace

TEST_CASE_FIXTURE(ShellFixture, "what is executed is noted with all its arguments") {
    shell.Execute("Open", "services.msc", "/s", "C:\\WINDOWS\\System32", 1);
    CHECK(machine.shell.executed ==
          std::vector<platform::simulated::Shell::Executed>{
              {"Open", "services.msc", "/s", "C:\\WINDOWS\\System32", 1}});
    CHECK(machine.journal.Lines() ==
          Lines{"ShellExecuteA \"Open\" \"services.msc\" \"/s\" \"C:\\WINDOWS\\System32\" 1"});
}

TEST_CASE_FIXTURE(ShellFixture, "an execution that fails is passed over and nothing has run") {
    machine.faults.FailOn("services.msc", 2);
    CHECK(FailureOf([&] { shell.Execute("Open", "services.msc", "", "", 1); }) == 0);
    CHECK(machine.shell.executed.empty());
    CHECK(machine.journal.Lines().size() == 1);
}

TEST_CASE_FIXTURE(ShellFixture, "the properties sheet is noted, and missing when a test says so") {
    shell.ObjectProperties(2);
    CHECK(machine.shell.propertySheets == std::vector<std::int32_t>{2});
    machine.faults.FailAll("shell32#178", runtime::DllFunctionNotFound);
    CHECK(FailureOf([&] { shell.ObjectProperties(2); }) == 453);
    CHECK(machine.shell.propertySheets.size() == 1);
    CHECK(machine.journal.Lines() == Lines{"shell32#178 2", "shell32#178 2 -> failure 453"});
}

TEST_CASE_FIXTURE(ShellFixture, "what is deleted without undo does not come into the recycle bin") {
    machine.files.Put("C:\\a.tmp", "x");
    CHECK(shell.OperateOnFiles(3, "C:\\A.TMP", 0x14) == 0);
    CHECK(machine.files.Content("C:\\a.tmp") == std::nullopt);
    CHECK(machine.shell.recycleBin.empty());
}

TEST_CASE_FIXTURE(ShellFixture, "a folder dialog without a script is a mistake in the test") {
    CHECK_THROWS_AS(shell.BrowseForFolder(owner, "", 7, [](auto&, auto) {}), std::logic_error);
}

TEST_CASE_FIXTURE(ShellFixture, "a text sent to the folder dialog ends before its first NUL") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Send(0x466, std::string_view("C:\\Temp\0rest", 12));
        return true;
    });
    CHECK(shell.BrowseForFolder(owner, "", 7, [](auto&, auto) {}) == "C:\\Temp");
}

TEST_CASE_FIXTURE(ShellFixture, "a started program is noted, and missing when a test says so") {
    auto& processes = machine.services.processes;
    processes.Start("C:\\WINDOWS\\regedit.exe /m", 1);
    machine.faults.FailOn("C:\\WINDOWS\\absent.exe", runtime::FileNotFound);
    CHECK(FailureOf([&] { processes.Start("C:\\WINDOWS\\absent.exe", 1); }) ==
          runtime::FileNotFound);
    CHECK(machine.processes.launched == std::vector<platform::simulated::Processes::Launched>{
                                            {"C:\\WINDOWS\\regedit.exe /m", 1}});
    CHECK(machine.journal.Lines() == Lines{"Start \"C:\\WINDOWS\\regedit.exe /m\" 1",
                                           "Start \"C:\\WINDOWS\\absent.exe\" 1 -> failure 53"});
}

TEST_CASE_FIXTURE(ShellFixture, "a directory with a held file in it cannot be deleted") {
    machine.files.Put("C:\\Temp\\a.tmp", "x");
    machine.files.Put("C:\\Temp\\sub\\b.tmp", "y");
    machine.files.Hold("C:\\Temp\\sub\\b.tmp");
    CHECK(shell.OperateOnFiles(3, "C:\\Temp", 0x54) == 32);
    CHECK(machine.files.Content("C:\\Temp\\a.tmp") == "x");
}
