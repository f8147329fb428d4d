#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "cleanup/tempfiles.h"
#include "contract/machine.h"
#include "contract/win32/boxes.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"
#include "toolkit/form.h"

// The search and the removal on a real disk. Wine takes a link away together with the empty folder
// that it leads to and refuses otherwise, so what is proven here of links is what they lead to.

namespace {

namespace win32 = platform::win32;
using Lines = std::vector<std::string>;

struct WindowsRemovalFixture {
    contract::TestMachine machine;
    const std::string temp = machine.FilePath("temp");
    const std::string data = machine.FilePath("data");
    toolkit::Form form{machine.Services().forms, "frmMain", "Quillmore", {}};
    cleanup::TempFiles tool{form, machine.Services()};
    cleanup::TempFilesFrame& frame = tool.Frame();
    toolkit::ListView& list = frame.lvwFiles;
    // Of the last removal.
    int shellQuestions = 0;

    // The user's temp folder is the one here, and the selected drive has no medium.
    WindowsRemovalFixture() {
        machine.MakeFolder(temp);
        machine.MakeFolder(data);
        machine.MakeFolder(data + "\\deep");
        for (const std::string& path : Precious()) Put(path, path);
        SetEnvironmentVariableW(L"TMP", win32::ToWide(temp).c_str());
        frame.chkCleanUserTempFolder.SetValue(1);
        frame.drvSelect.SetDrives({"q:"});
        frame.drvSelect.SetDrive("q:");
    }
    ~WindowsRemovalFixture() { SetEnvironmentVariableW(L"TMP", oldTemp_.c_str()); }

    Lines Precious() const {
        return {data + "\\precious.tmp", data + "\\deep\\precious.tmp", data + "\\c.dat"};
    }
    std::string In(std::string_view name) const { return temp + '\\' + std::string(name); }
    void Put(const std::string& path, std::string_view bytes) {
        machine.Services().files.WriteText(path, bytes);
    }
    void Make(std::string_view name, std::uint32_t attributes = 32) {
        Put(In(name), "x");
        machine.SetAttributes(In(name), attributes);
    }
    void Folder(std::string_view name) { machine.MakeFolder(In(name)); }
    void Link(std::string_view name, const std::string& target) {
        machine.MakeLink(In(name), target);
    }
    bool IsThere(std::string_view name) {
        return machine.Services().folders.Find(In(name)).has_value();
    }
    void Swap(std::string_view name, const std::string& target) {
        const std::wstring old = win32::ToWide(In(name));
        MoveFileW(old.c_str(), (old + L" old").c_str());
        Link(name, target);
    }

    // The names of the rows below the temp folder.
    Lines Search() {
        frame.cmdSearchTempFiles.Press();
        Lines names;
        for (int row = 0; row < list.Count(); ++row) {
            const std::string& path = list.Text(row);
            if (path.starts_with(temp + '\\')) names.push_back(path.substr(temp.size() + 1));
        }
        return names;
    }
    void TickOnly(std::string_view name) {
        for (int row = 0; row < list.Count(); ++row) {
            list.SetTicked(row, list.Text(row) == In(name));
        }
    }
    // Only what lies in the temp folder here is removed. Folders get the word that marks them,
    // which Wine does not use.
    void Clean() {
        for (int row = list.Count() - 1; row >= 0; --row) {
            const auto entry = machine.Services().folders.Find(list.Text(row));
            if (!list.Text(row).starts_with(temp + '\\')) {
                list.RemoveRow(row);
            } else if (entry && entry->IsFolder()) {
                list.SetText(row, cleanup::column::Type, "Dateiordner");
            }
        }
        contract::BoxAnswerer user(IDYES);
        frame.cmdCleanTempFiles.Press();
        CHECK(user.boxes == 1);
        shellQuestions = user.shellQuestions;
        for (const std::string& path : Precious()) {
            CAPTURE(path);
            CHECK(machine.FileContent(path) == path);
        }
    }

  private:
    std::wstring oldTemp_ = [] {
        wchar_t path[MAX_PATH];
        return std::wstring(path, GetEnvironmentVariableW(L"TMP", path, MAX_PATH));
    }();
};

}  // namespace

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a real tree is listed by its attributes, umlauts and all") {
    Folder("Größe");
    Make("Größe\\ä.txt");
    Make("hidden.txt", 34);
    for (int attributes : {33, 36, 38, 39}) {
        Make("no" + std::to_string(attributes), static_cast<std::uint32_t>(attributes));
    }
    Make("yes35.txt", 35);
    Lines rows = Search();
    std::sort(rows.begin(), rows.end());
    CHECK(rows == Lines{"Größe", "Größe\\ä.txt", "hidden.txt", "yes35.txt"});
    for (int attributes : {33, 36, 38, 39})
        machine.SetAttributes(In("no" + std::to_string(attributes)), 32);
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "real folders and files are removed, read-only ones in folders, too") {
    Folder("a");
    Folder("a\\b");
    Make("a\\b\\c.dat", 33);
    machine.SetAttributes(In("a\\b"), 17);
    Make("d.dat");
    Search();
    Clean();
    CHECK_FALSE(IsThere("a"));
    CHECK_FALSE(IsThere("d.dat"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "the bin takes ticked files and all folders, each after a question") {
    Folder("a");
    Make("a\\b.dat");
    Make("c.dat");
    Make("kept.dat");
    Search();
    for (int row = 0; row < list.Count(); ++row) {
        const std::string& path = list.Text(row);
        list.SetTicked(row, path == In("c.dat") || path == In("a\\b.dat"));
    }
    frame.chkMoveToRecycleBin.SetValue(1);
    Clean();
    CHECK(shellQuestions == 3);
    CHECK_FALSE(IsThere("a"));
    CHECK_FALSE(IsThere("c.dat"));
    CHECK(IsThere("kept.dat"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "links in a folder that is removed leave what they lead to") {
    Folder("a");
    Make("a\\c.dat");
    Search();
    Link("a\\into another tree", data);
    Link("a\\deep", data + "\\deep");
    Link("a\\onto itself", In("a"));
    Link("a\\onto the search", temp);
    Folder("b");
    Link("b\\to a", In("a"));
    Make("kept.dat");
    TickOnly("a");
    Clean();
    CHECK(IsThere("kept.dat"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture, "a folder row that is a link leaves what it leads to") {
    Link("link", data);
    Search();
    TickOnly("link");
    Clean();
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a folder swapped for a link since the search leaves what it leads to") {
    Folder("a");
    Make("a\\c.dat");
    Search();
    Swap("a", data);
    Clean();
    CHECK(IsThere("a old\\c.dat"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a file behind a folder swapped for a link since the search stays") {
    Folder("a");
    Folder("a\\b");
    Make("a\\b\\c.dat");
    Search();
    Swap("a\\b", data);
    TickOnly("a\\b\\c.dat");
    for (int row = list.Count() - 1; row >= 0; --row) {
        if (!list.Ticked(row)) list.RemoveRow(row);
    }
    REQUIRE(list.Count() == 1);
    Clean();
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a link onto its own folder ends the walk and the removal") {
    Folder("a");
    Make("a\\c.dat");
    Link("a\\loop", In("a"));
    const Lines rows = Search();
    CHECK(rows.size() > 1);
    CHECK(rows.size() < 130);
    Clean();
    CHECK_FALSE(IsThere("a\\c.dat"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture, "a dead link stops nothing") {
    Folder("gone");
    Folder("a");
    Link("a\\dead", In("gone"));
    platform::Folders& folders = machine.Services().folders;
    folders.Remove(In("gone"), true);
    Make("d.dat");
    Search();
    Clean();
    CHECK_FALSE(IsThere("d.dat"));
    machine.MakeFolder(In("gone"));
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a file in use stays and is counted, a vanished one is not") {
    Make("held.dat");
    Make("vanished.dat");
    Make("free.dat");
    Search();
    machine.Services().files.Remove(In("vanished.dat"), true);
    {
        const win32::FileHandle held(CreateFileW(win32::ToWide(In("held.dat")).c_str(),
                                                 GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0,
                                                 nullptr));
        REQUIRE(held);
        Clean();
    }
    CHECK(IsThere("held.dat"));
    CHECK_FALSE(IsThere("free.dat"));
    CHECK(frame.lblHinweisTemp.Caption() ==
          "1 Dateien konnten nicht gelöscht werden (in Benutzung).");
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a folder that may not be read is passed over by the walk") {
    Folder("a");
    Folder("a\\b");
    Make("a\\b\\c.dat");
    Make("d.dat");
    machine.WithUnreadable(In("a\\b"), [&] {
        // Its size cannot be told either, and that has a message.
        contract::BoxAnswerer user(IDOK);
        CHECK(Search() == Lines{"d.dat"});
        CHECK(user.title == "Fehler 70");
    });
}

TEST_CASE_FIXTURE(WindowsRemovalFixture,
                  "a folder whose paths grow too long keeps what cannot be reached") {
    Folder("a");
    Make("b.dat");
    std::wstring path = L"\\\\?\\" + win32::ToWide(In("a"));
    while (path.size() < 300) {
        path += L"\\0123456789";
        REQUIRE(CreateDirectoryW(path.c_str(), nullptr));
    }
    Search();
    Clean();
    CHECK_FALSE(IsThere("b.dat"));
    CHECK(IsThere("a"));
    for (; path.size() > 4 + In("a").size(); path.resize(path.rfind(L'\\'))) {
        CHECK(RemoveDirectoryW(path.c_str()));
    }
}
