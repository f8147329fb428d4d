#include "platform/win32/shell.h"

#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <utility>

#include "contract/machine.h"
#include "contract/win32/boxes.h"
#include "contract/win32/child.h"
#include "contract/win32/folderuser.h"
#include "platform/files.h"
#include "platform/program.h"
#include "platform/win32/formhandles.h"
#include "platform/win32/handle.h"
#include "platform/win32/messages.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"
#include "system/filelock.h"
#include "system/folderdialog.h"
#include "system/shelldelete.h"
#include "toolkit/form.h"

// What the real shell does with windows, files and programs.

namespace {

namespace win32 = platform::win32;

// Forms that all have one window, a plain one.
class OneWindow final : public win32::FormHandles {
  public:
    void Open(toolkit::Form&) override {}
    void RunModal(toolkit::Form&) override {}
    void Close(toolkit::Form&) override {}
    toolkit::Bounds WorkArea() const override { return {}; }
    std::vector<toolkit::Form*> OpenForms() const override { return {}; }
    HWND WindowOf(const toolkit::Form&) const override { return window.Get(); }

    win32::WindowHandle window{CreateWindowExW(0, L"STATIC", L"Besitzer",
                                               WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 200, 100,
                                               nullptr, nullptr, nullptr, nullptr)};
};

struct WindowsPicker {
    OneWindow forms;
    win32::Messages messages;
    win32::Shell shell{forms, messages};
    toolkit::Form owner{forms, "frmOwner", "Fenster", {}};

    static bool Contains(const std::vector<std::string>& texts, const std::string& wanted) {
        return std::find(texts.begin(), texts.end(), wanted) != texts.end();
    }
};

struct WindowsShellFixture {
    contract::TestMachine machine;
    platform::Shell& shell = machine.Services().shell;

    std::string NewFile(std::string_view name) {
        const std::string path = machine.FilePath(name);
        auto& files = machine.Services().files;
        files.Close(files.OpenForAppend(path));
        return path;
    }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsPicker, "the folder picker lies over its owner and shows title and path") {
    const std::string start = shell.SpecialFolder(0x25);
    contract::FolderUser user(true);
    CHECK(sys::BrowseForFolderPath(shell, owner, "Wählen Sie einen Ordner", start) == start);
    CHECK(user.dialogs == 1);
    CHECK(user.owner == forms.window.Get());
    CHECK(Contains(user.labels, "Wählen Sie einen Ordner"));
    CHECK(Contains(user.labels, start));
}

TEST_CASE_FIXTURE(WindowsPicker, "the cancelled folder picker gives the empty text") {
    contract::FolderUser user(false);
    CHECK(sys::BrowseForFolderPath(shell, owner, "Ordner", shell.SpecialFolder(0x24)) == "");
    CHECK(user.dialogs == 1);
}

TEST_CASE_FIXTURE(WindowsPicker,
                  "a failure in the dialog's callback ends in a box and the dialog stays") {
    contract::BoxAnswerer box(IDOK);
    contract::FolderUser user(false);
    bool failed = false;
    shell.BrowseForFolder(owner, "Ordner", 1, [&](platform::FolderDialog&, std::uint32_t) {
        if (!std::exchange(failed, true)) throw runtime::Failure(runtime::Overflow);
    });
    CHECK(box.boxes == 1);
    CHECK(user.dialogs == 1);
}

TEST_CASE_FIXTURE(WindowsShellFixture, "a program is executed with its parameters") {
    const std::string report = machine.FilePath("executed.txt");
    const std::string child = machine.Services().program.Directory() + "\\contract_child.exe";
    shell.Execute("Open", child, "line " + report + " two", machine.FilePath(""), 0);
    REQUIRE(
        machine.PassTime(10000, [&] { return machine.FileContent(report).value_or("") != ""; }));
    CHECK(machine.FileContent(report) == "line " + report + " two");
}

TEST_CASE_FIXTURE(WindowsShellFixture, "a program runs in the directory that it is executed in") {
    const std::string report = machine.FilePath("relative.txt");
    const std::string child = machine.Services().program.Directory() + "\\contract_child.exe";
    shell.Execute("Open", child, "line relative.txt", machine.FilePath(""), 0);
    CHECK(machine.PassTime(10000, [&] { return machine.FileContent(report).value_or("") != ""; }));
}

TEST_CASE_FIXTURE(WindowsShellFixture, "a real file goes by the silent deletion, and no other") {
    const std::string path = NewFile("Größe mit Leerzeichen.tmp");
    const std::string other = NewFile("Größe.tmp");
    CHECK(sys::ShellDeleteFile(shell, path, true));
    CHECK(machine.FileContent(path) == std::nullopt);
    CHECK(machine.FileContent(other) == "");
}

TEST_CASE_FIXTURE(WindowsShellFixture,
                  "a file that another program has to itself is locked until it lets go") {
    const std::string path = NewFile("held.tmp");
    {
        const win32::FileHandle held(CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ, 0,
                                                 nullptr, OPEN_EXISTING, 0, nullptr));
        REQUIRE(held);
        CHECK(sys::FileIsLocked(machine.Services().files, path));
    }
    CHECK_FALSE(sys::FileIsLocked(machine.Services().files, path));
}

TEST_CASE_FIXTURE(WindowsShellFixture, "a file that another program only reads is locked too") {
    const std::string path = NewFile("read.tmp");
    const win32::FileHandle held(CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    REQUIRE(held);
    CHECK(sys::FileIsLocked(machine.Services().files, path));
}
