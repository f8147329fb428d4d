#include <doctest/doctest.h>

#include "cleanup/fixture.h"

using cleanup_test::Fixture;
using cleanup_test::Lines;
using platform::simulated::ShownMessage;

namespace {

struct Found : Fixture {
    // Two temp files and, as a row of its own, a folder with a file.
    Found() {
        File("C:\\x\\a.tmp");
        File("C:\\x\\b.tmp");
        File("C:\\x\\kept.txt");
        File("C:\\WINDOWS\\Temp\\sub\\deep\\c.dat");
        Search();
        machine.journal.Clear();
        REQUIRE(Rows() == Lines{"C:\\WINDOWS\\Temp\\sub", "c:\\x\\a.tmp", "c:\\x\\b.tmp"});
    }
    bool IsThere(const char* path) const { return disk.Find(path) != nullptr; }
    Lines Deletions() const {
        Lines lines;
        for (const std::string& line : machine.journal.Lines()) {
            const bool deletes =
                line.starts_with("DeleteFile") || line.starts_with("RemoveDirectory") ||
                line.starts_with("SHFileOperation") || line.starts_with("SHEmptyRecycleBin");
            if (deletes) lines.push_back(line);
        }
        return lines;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Found, "with nothing ticked there is one message, and not even a folder goes") {
    frame.TickAll(false);
    const auto before = disk.Snapshot();
    frame.cmdCleanTempFiles.Press();
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{
              {"Tempdateien löschen", "Keine Tempdateien zum löschen ausgewählt.", 48}});
    CHECK(disk.Snapshot() == before);
    CHECK(list.Count() == 3);
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Found, "No to the question leaves files, list and labels as they are") {
    const auto before = disk.Snapshot();
    Clean(platform::message::No);
    CHECK(
        machine.messages.Shown() ==
        std::vector<ShownMessage>{{"Tempdateien löschen", "Alle markierten Dateien löschen?", 36}});
    CHECK(disk.Snapshot() == before);
    CHECK(list.Count() == 3);
    CHECK(frame.lblScannedFiles.Caption() == "Suchvorgang abgeschlossen!");
}

TEST_CASE_FIXTURE(Found, "a question that cannot be shown deletes nothing") {
    const auto before = disk.Snapshot();
    machine.faults.FailOn("Tempdateien löschen", 7);
    frame.cmdCleanTempFiles.Press();
    CHECK(disk.Snapshot() == before);
}

TEST_CASE_FIXTURE(Found, "ticked files and folders go for good") {
    Clean();
    CHECK(Deletions() == Lines{"DeleteFile \"C:\\WINDOWS\\Temp\\sub\" force -> failure 70",
                               "DeleteFile \"C:\\WINDOWS\\Temp\\sub\\deep\\c.dat\" force",
                               "RemoveDirectoryW \"C:\\WINDOWS\\Temp\\sub\\deep\" force",
                               "RemoveDirectoryW \"C:\\WINDOWS\\Temp\\sub\" force",
                               "DeleteFile \"c:\\x\\a.tmp\" force",
                               "DeleteFile \"c:\\x\\b.tmp\" force"});
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub"));
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
    CHECK(IsThere("C:\\x\\kept.txt"));
    CHECK(IsThere("C:\\WINDOWS\\Temp"));
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Found,
                  "afterwards the list is empty, the deletion disabled, the result is shown") {
    std::string progress;
    int pointer = 0;
    machine.folders.afterListing = [&](const std::string&) {
        progress = frame.lblScannedFiles.Caption();
        pointer = machine.forms.ScreenPointer();
    };
    Clean();
    CHECK(progress == "Lösche 'C:\\WINDOWS\\Temp\\sub'");
    CHECK(pointer == toolkit::Hourglass);
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
    CHECK(list.Count() == 0);
    CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
    CHECK(frame.lblScannedFiles.Caption() == "Löschvorgang abgeschlossen!");
    CHECK(frame.lblHinweisTemp.Caption() ==
          "0 Dateien konnten nicht gelöscht werden (in Benutzung).");
}

TEST_CASE_FIXTURE(Found, "the deletion takes no hourglass of the form's own away") {
    form.SetPointer(toolkit::Hourglass);
    Clean();
    CHECK(list.Count() == 0);
    CHECK(form.ShownPointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Found, "an unticked file stays, an unticked folder goes all the same") {
    list.SetTicked(0, false);
    list.SetTicked(2, false);
    Clean();
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub"));
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
    CHECK(IsThere("C:\\x\\b.tmp"));
    CHECK(list.Count() == 0);
}

TEST_CASE_FIXTURE(Found, "into the recycle bin go files and folders, and the shell may ask") {
    Tick(frame.chkMoveToRecycleBin);
    list.SetTicked(0, false);
    Clean();
    CHECK(Deletions() == Lines{"SHFileOperationA 3 \"C:\\WINDOWS\\Temp\\sub\" 0x44 -> 0",
                               "SHFileOperationA 3 \"c:\\x\\a.tmp\" 0x44 -> 0",
                               "SHFileOperationA 3 \"c:\\x\\b.tmp\" 0x44 -> 0"});
    CHECK(machine.shell.recycleBin ==
          Lines{"C:\\WINDOWS\\Temp\\sub", "c:\\x\\a.tmp", "c:\\x\\b.tmp"});
}

TEST_CASE_FIXTURE(Found, "a ticked folder is moved once, and nothing is found the second time") {
    Tick(frame.chkMoveToRecycleBin);
    Clean();
    CHECK(machine.shell.recycleBin.size() == 3);
    CHECK(Deletions().size() == 3);
}

TEST_CASE_FIXTURE(Found, "the recycle bin is emptied first, when its box is ticked") {
    Tick(frame.chkCleanRecycleBin);
    Tick(frame.chkMoveToRecycleBin);
    machine.shell.recycleBin = {"C:\\old"};
    Clean();
    CHECK(Deletions().front() == "SHEmptyRecycleBinA 0x01");
    CHECK(machine.shell.recycleBin.size() == 3);
}

TEST_CASE_FIXTURE(Found, "a recycle bin that is not emptied stops nothing") {
    Tick(frame.chkCleanRecycleBin);
    machine.faults.FailAll("SHEmptyRecycleBinA", 5);
    Clean();
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
}

TEST_CASE_FIXTURE(Found, "files in use stay and are counted, whatever becomes of the others") {
    File("C:\\x\\c.tmp");
    Search();
    for (const char* name : {"a", "b", "c"}) {
        machine.files.Hold("C:\\x\\" + std::string(name) + ".tmp");
    }
    Clean();
    CHECK(frame.lblHinweisTemp.Caption() ==
          "3 Dateien konnten nicht gelöscht werden (in Benutzung).");
    CHECK(IsThere("C:\\x\\c.tmp"));
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub"));
    CHECK(list.Count() == 0);
}

TEST_CASE_FIXTURE(Found, "an unticked file in use is not counted") {
    machine.files.Hold("C:\\x\\a.tmp");
    list.SetTicked(1, false);
    Clean();
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Found, "a file that has vanished is neither counted nor told") {
    disk.Erase(disk.At("C:\\x\\a.tmp"));
    Clean();
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
    CHECK(machine.messages.Shown().size() == 1);
    // It was tried all the same.
    CHECK(machine.journal.Calls("DeleteFile").size() == 4);
}

TEST_CASE_FIXTURE(Found, "a path that stands twice in the list is deleted once, in silence") {
    list.AddRow("c:\\x\\a.tmp");
    list.SetTicked(3, true);
    Clean();
    CHECK(machine.journal.Calls("DeleteFile").back() ==
          "DeleteFile \"c:\\x\\a.tmp\" force -> failure 53");
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Fixture, "an empty temp file, found by name and by size, goes once, in silence") {
    File("C:\\x\\empty.tmp", 32, "");
    Tick(frame.chkNullByteFiles);
    Search();
    REQUIRE(Rows() == Lines{"c:\\x\\empty.tmp", "c:\\x\\empty.tmp"});
    Clean();
    CHECK(disk.Find("C:\\x\\empty.tmp") == nullptr);
    CHECK(list.Count() == 0);
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(Found, "a failing deletion, whatever its number, leaves the others their turn") {
    for (int number : {5, 53, 70, 75, 76}) {
        File("C:\\x\\a.tmp");
        File("C:\\x\\b.tmp");
        Search();
        machine.faults.FailOn("c:\\x\\a.tmp", number);
        Clean();
        machine.faults.Clear();
        CHECK(IsThere("C:\\x\\a.tmp"));
        CHECK_FALSE(IsThere("C:\\x\\b.tmp"));
    }
}

TEST_CASE_FIXTURE(Found, "a folder stops at its first file in use; it is not counted") {
    File("C:\\WINDOWS\\Temp\\sub\\deep\\d.dat").held = true;
    File("C:\\WINDOWS\\Temp\\sub\\deep\\e.dat");
    Search();
    Clean();
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub\\deep\\c.dat"));
    CHECK(IsThere("C:\\WINDOWS\\Temp\\sub\\deep\\e.dat"));
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Found, "read-only files and folders in a folder go, too") {
    disk.At("C:\\WINDOWS\\Temp\\sub").attributes = 17;
    disk.At("C:\\WINDOWS\\Temp\\sub\\deep").attributes = 17;
    disk.At("C:\\WINDOWS\\Temp\\sub\\deep\\c.dat").attributes = 1;
    Clean();
    CHECK_FALSE(IsThere("C:\\WINDOWS\\Temp\\sub"));
}

TEST_CASE_FIXTURE(Found,
                  "where the shell has another word for folders, their rows are no folders") {
    machine.shell.folderType = "File Folder";
    Search();
    Clean();
    CHECK(IsThere("C:\\WINDOWS\\Temp\\sub\\deep\\c.dat"));
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Found, "the space of the drive is shown anew afterwards") {
    machine.systemFacts.SetSpace('C', {0, 100, 40});
    Clean();
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 60 Bytes");
}

TEST_CASE_FIXTURE(Found, "a link that a search during the removal learns of is not confirmed") {
    File("D:\\other\\a.tmp");
    machine.folders.afterListing = [&](const std::string& path) {
        if (path != "C:\\WINDOWS\\Temp\\sub") return;
        machine.folders.afterListing = nullptr;
        platform::simulated::Disk::Erase(disk.At("C:\\x"));
        disk.MakeLink("C:\\x", "D:\\other");
        Search();
    };
    Clean();
    CHECK(machine.folders.afterListing == nullptr);
    CHECK(IsThere("D:\\other\\a.tmp"));
}

TEST_CASE_FIXTURE(Found, "rows that come into the list during the removal are not confirmed") {
    File("C:\\x\\new.tmp");
    machine.folders.afterListing = [&](const std::string& path) {
        if (path != "C:\\WINDOWS\\Temp\\sub") return;
        machine.folders.afterListing = nullptr;
        Search();
    };
    Clean();
    CHECK(IsThere("C:\\x\\new.tmp"));
    CHECK_FALSE(IsThere("C:\\x\\a.tmp"));
}

TEST_CASE_FIXTURE(Fixture, "what a removal does is shown at once, each file when it has gone") {
    File("C:\\x\\a.tmp");
    File("C:\\x\\b.tmp").held = true;
    Search();
    cleanup_test::PaintedLines painted(*this);
    painted.whenPainted = [&](const std::string& line) {
        if (line.starts_with("Lösche Papierkorb")) CHECK(disk.Find("C:\\x\\a.tmp"));
        if (line == "Lösche 'c:\\x\\a.tmp'") CHECK_FALSE(disk.Find("C:\\x\\a.tmp"));
    };
    bool emptied = false;
    SUBCASE("also that of the recycle bin, which stays as it is") {}
    SUBCASE("the recycle bin's before it is emptied") {
        emptied = true;
        Tick(frame.chkCleanRecycleBin);
    }
    Clean();
    CHECK(painted.lines == Lines{"Lösche Papierkorb von Laufwerk 'c: [SYSTEM]' ...",
                                 "Lösche 'c:\\x\\a.tmp'", "Lösche 'c:\\x\\b.tmp'"});
    CHECK(machine.journal.Calls("SHEmptyRecycleBinA").size() == (emptied ? 1 : 0));
}

TEST_CASE_FIXTURE(Fixture, "a row whose path the system would take for another's is not opened") {
    File("C:\\x\\y.tmp");
    Search();
    for (const char* path : {"c:\\x\\y.tmp.", "c:\\x\\com1.tmp"}) {
        list.AddRow(path);
        list.SetTicked(list.Count() - 1, true);
    }
    list.SetTicked(0, false);
    machine.journal.Clear();
    Clean();
    CHECK(machine.journal.Calls("OpenForReading").empty());
    CHECK(machine.journal.Calls("DeleteFile").empty());
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Fixture, "a file behind a link that has come since the search is not in use") {
    File("C:\\x\\a.tmp");
    File("C:\\other\\a.tmp").held = true;
    Search();
    REQUIRE(list.Count() == 2);
    platform::simulated::Disk::Erase(disk.At("C:\\x"));
    disk.MakeLink("C:\\x", "C:\\other");
    for (int row = 0; row < 2; ++row) {
        list.SetTicked(row, list.Text(row) == "c:\\x\\a.tmp");
    }
    Clean();
    CHECK(frame.lblHinweisTemp.Caption().starts_with("0 "));
}

TEST_CASE_FIXTURE(Fixture, "a file in a folder that carries the mark of links goes into the bin") {
    Tick(frame.chkCleanUserTempFolder);
    Tick(frame.chkMoveToRecycleBin);
    File("C:\\UserTemp\\a\\remote.dat", 32 | platform::attribute::Link);
    Search();
    frame.TickAll(false);
    list.SetTicked(list.Count() - 1, true);
    REQUIRE(list.Text(list.Count() - 1) == "C:\\UserTemp\\a");
    Clean();
    CHECK(machine.journal.Calls("DeleteFile").empty());
    CHECK(machine.shell.recycleBin == Lines{"C:\\UserTemp\\a"});
}
