#include "platform/shell.h"

#include <doctest/doctest.h>

#include <vector>

#include "contract/machine.h"
#include "platform/files.h"
#include "platform/systemfacts.h"
#include "toolkit/form.h"

namespace {

constexpr std::uint32_t Delete = 3;
// Silent, no confirmation, no box for an error. Nothing of a test goes to the recycle bin.
constexpr std::uint16_t Quiet = 0x04 | 0x10 | 0x400;
constexpr std::uint32_t Initialised = 1;
constexpr std::uint32_t SelectionChanged = 2;
constexpr std::uint32_t SetSelection = 0x466;
constexpr std::uint32_t FoldersOnly = 1;

struct ShellFixture {
    contract::TestMachine machine;
    platform::Shell& shell = machine.Services().shell;

    std::string NewFile(std::string_view name) {
        const std::string path = machine.FilePath(name);
        auto& files = machine.Services().files;
        const auto file = files.OpenForAppend(path);
        files.Write(file, "x");
        files.Close(file);
        return path;
    }
};

// A folder dialog that is opened on the Windows directory and used once.
struct Picker : ShellFixture {
    toolkit::Form owner{machine.Services().forms, "frmOwner", "Fenster", {}};
    const std::string windows = machine.Services().systemFacts.WindowsDirectory();
    std::vector<std::uint32_t> messages;
    std::vector<std::string> selected;

    std::string Browse(bool ok) {
        machine.UseNextFolderDialog(ok);
        return shell.BrowseForFolder(
            owner, "Ordner wählen", FoldersOnly,
            [&](platform::FolderDialog& dialog, std::uint32_t message) {
                messages.push_back(message);
                if (message == Initialised) dialog.Send(SetSelection, windows);
                if (message == SelectionChanged) {
                    selected.push_back(dialog.SelectedPath().value_or("none"));
                }
            });
    }
};

}  // namespace

TEST_CASE_FIXTURE(ShellFixture, "executing a file that is not there is passed over") {
    const std::string absent = machine.FilePath("absent.msc");
    CHECK_NOTHROW(shell.Execute("Open", absent, "/s", machine.FilePath(""), 1));
}

TEST_CASE_FIXTURE(ShellFixture, "the shell has a sheet of properties by number alone") {
    CHECK_NOTHROW(shell.ObjectProperties(2));
}

TEST_CASE_FIXTURE(ShellFixture,
                  "the special folder 0x24 is the Windows directory, 0x25 the system's") {
    const auto& facts = machine.Services().systemFacts;
    CHECK(shell.SpecialFolder(0x24) == facts.WindowsDirectory());
    CHECK(shell.SpecialFolder(0x25) == facts.SystemDirectory());
}

TEST_CASE_FIXTURE(ShellFixture,
                  "the folders of the user are full paths without a backslash behind") {
    for (int csidl : {0x08, 0x09, 0x1A}) {
        const std::string path = shell.SpecialFolder(csidl);
        REQUIRE(path.size() > 3);
        CHECK(path.substr(1, 2) == ":\\");
        CHECK(path.back() != '\\');
    }
}

TEST_CASE_FIXTURE(ShellFixture, "an unknown number is no special folder") {
    CHECK(shell.SpecialFolder(4711) == "");
    CHECK(shell.SpecialFolder(-1) == "");
}

TEST_CASE_FIXTURE(ShellFixture, "a special folder outside the file system has no path") {
    constexpr int controlPanel = 3;
    CHECK(shell.SpecialFolder(controlPanel) == "");
}

TEST_CASE_FIXTURE(ShellFixture, "a deleted file is gone, and its neighbour is not") {
    const std::string path = NewFile("Größe eins.tmp");
    const std::string other = NewFile("other.tmp");
    CHECK(shell.OperateOnFiles(Delete, path, Quiet) == 0);
    CHECK(machine.FileContent(path) == std::nullopt);
    CHECK(machine.FileContent(other) == "x");
}

TEST_CASE_FIXTURE(ShellFixture, "deleting a file that is not there is refused with a code") {
    CHECK(shell.OperateOnFiles(Delete, machine.FilePath("absent.tmp"), Quiet) != 0);
}

TEST_CASE_FIXTURE(ShellFixture, "an unknown operation on files is refused and leaves them") {
    const std::string path = NewFile("kept.tmp");
    CHECK(shell.OperateOnFiles(99, path, Quiet) != 0);
    CHECK(machine.FileContent(path) == "x");
}

TEST_CASE_FIXTURE(Picker, "a folder dialog closed with OK gives what was preselected") {
    CHECK(Browse(true) == windows);
}

TEST_CASE_FIXTURE(Picker, "a folder dialog that is cancelled gives the empty text") {
    CHECK(Browse(false) == "");
}

TEST_CASE_FIXTURE(Picker, "a folder dialog reports first that it is there, then the selection") {
    Browse(false);
    REQUIRE(messages.size() >= 2);
    CHECK(messages.front() == Initialised);
    REQUIRE_FALSE(selected.empty());
    CHECK(selected.back() == windows);
}
