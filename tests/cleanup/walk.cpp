#include <doctest/doctest.h>

#include <algorithm>

#include "cleanup/fixture.h"

// What a search goes through and what it lists, with nothing ticked unless the test says so.

using cleanup_test::Fixture;
using cleanup_test::Lines;

TEST_CASE_FIXTURE(Fixture,
                  "sub-folders come first, the deepest before the others, then own files") {
    File("C:\\a\\own.tmp");
    File("C:\\a\\sub\\own.tmp");
    File("C:\\a\\sub\\deep\\own.tmp");
    File("C:\\b\\own.tmp");
    File("C:\\root.tmp");
    CHECK(Found() == Lines{"c:\\a\\sub\\deep\\own.tmp", "c:\\a\\sub\\own.tmp", "c:\\a\\own.tmp",
                           "c:\\b\\own.tmp", "c:\\root.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "files come in the disk's own order") {
    for (const char* name : {"z.tmp", "a.tmp", "m.tmp"}) File(std::string("C:\\x\\") + name);
    CHECK(Found() == Lines{"c:\\x\\z.tmp", "c:\\x\\a.tmp", "c:\\x\\m.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "a row has path, size, type and date and is ticked") {
    auto& file = File("C:\\x\\a.tmp", 32, "12345");
    file.modified = {2004, 3, 9, 8, 5, 1};
    REQUIRE(Found().size() == 1);
    CHECK(list.Text(0) == "c:\\x\\a.tmp");
    CHECK(list.Text(0, 1) == "5");
    CHECK(list.Text(0, 2) == "TMP-Datei");
    CHECK(list.Text(0, 3) == "09.03.2004 08:05:01");
    CHECK(list.Ticked(0));
}

TEST_CASE_FIXTURE(Fixture, "a size beyond 32 bits is told in full") {
    File("C:\\x\\a.tmp").toldSize = 12345678901;
    Search();
    CHECK(list.Text(0, 1) == "12345678901");
}

TEST_CASE_FIXTURE(Fixture, "a folder is left out by its whole attribute value and no other") {
    for (int attributes : {18, 20, 21, 22}) {
        disk.MakeFolder("C:\\h" + std::to_string(attributes),
                        static_cast<std::uint32_t>(attributes));
        File("C:\\h" + std::to_string(attributes) + "\\sub\\a.tmp");
    }
    for (int attributes : {16, 17, 19, 23, 48, 50, 52, 54, 2066}) {
        disk.MakeFolder("C:\\s" + std::to_string(attributes),
                        static_cast<std::uint32_t>(attributes));
        File("C:\\s" + std::to_string(attributes) + "\\a.tmp");
    }
    CHECK(Found() == Lines{"c:\\s16\\a.tmp", "c:\\s17\\a.tmp", "c:\\s19\\a.tmp", "c:\\s23\\a.tmp",
                           "c:\\s48\\a.tmp", "c:\\s50\\a.tmp", "c:\\s52\\a.tmp", "c:\\s54\\a.tmp",
                           "c:\\s2066\\a.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "an excluded folder is left out with all below it, uncounted") {
    File("C:\\WINDOWS\\system32\\x.tmp");
    File("C:\\WINDOWS\\system32\\drivers\\x.tmp");
    File("C:\\SendToBackup\\x.tmp");
    File("C:\\WINDOWS\\Temp\\x.tmp");
    CHECK(Found() == Lines{"c:\\WINDOWS\\Temp\\x.tmp"});
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 1 Bytes - Gescannt: 1 Dateien");
}

TEST_CASE_FIXTURE(Fixture, "a zero-size temp file has two identical rows when they are wanted") {
    File("C:\\x\\a.tmp", 32, "");
    File("C:\\x\\b.txt", 32, "");
    CHECK(Found() == Lines{"c:\\x\\a.tmp"});
    Tick(frame.chkNullByteFiles);
    CHECK(Found() == Lines{"c:\\x\\a.tmp", "c:\\x\\a.tmp", "c:\\x\\b.txt"});
    for (int column = 0; column < 4; ++column) CHECK(list.Text(0, column) == list.Text(1, column));
    CHECK(list.Ticked(0));
    CHECK(list.Ticked(1));
}

TEST_CASE_FIXTURE(Fixture, "a temp file is counted but has no row when it is read-only or system") {
    for (int attributes : {1, 33, 4, 36, 39, 38}) {
        File("C:\\x\\a" + std::to_string(attributes) + ".tmp",
             static_cast<std::uint32_t>(attributes));
    }
    File("C:\\x\\hidden.tmp", 34);
    CHECK(Found() == Lines{"c:\\x\\hidden.tmp"});
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 1 Bytes - Gescannt: 7 Dateien");
}

TEST_CASE_FIXTURE(Fixture, "Thumbs.db is listed only when its box is ticked, hidden or not") {
    File("C:\\x\\Thumbs.db", 38);
    File("C:\\y\\Thumbs.db", 32);
    CHECK(Found().empty());
    Tick(frame.chkDeleteThumbs);
    CHECK(Found() == Lines{"c:\\x\\Thumbs.db", "c:\\y\\Thumbs.db"});
}

TEST_CASE_FIXTURE(Fixture, "an empty Thumbs.db with the attributes 38 needs its own box as well") {
    File("C:\\x\\Thumbs.db", 38, "");
    Tick(frame.chkNullByteFiles);
    CHECK(Found().empty());
    Tick(frame.chkDeleteThumbs);
    CHECK(Found().size() == 2);
}

TEST_CASE_FIXTURE(Fixture, "a folder that may not be read is passed over without a message") {
    disk.MakeFolder("C:\\locked").unreadable = true;
    File("C:\\locked\\a.tmp");
    File("C:\\x\\b.tmp");
    CHECK(Found() == Lines{"c:\\x\\b.tmp"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture,
                  "a folder that vanishes when its parent has been listed is passed over") {
    File("C:\\x\\gone\\a.tmp");
    File("C:\\x\\b.tmp");
    machine.folders.afterListing = [&](const std::string& path) {
        if (path == "c:\\x") disk.Erase(disk.At("C:\\x\\gone"));
    };
    CHECK(Found() == Lines{"c:\\x\\b.tmp"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "any failure of a listing is passed over by the walk") {
    File("C:\\x\\a.tmp");
    File("C:\\y\\b.tmp");
    for (int number : {5, 7, 70, 76}) {
        machine.faults.FailOn("c:\\x", number);
        CHECK(Found() == Lines{"c:\\y\\b.tmp"});
        machine.faults.Clear();
    }
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "a held file is listed, as nobody opens it") {
    File("C:\\x\\a.tmp").held = true;
    CHECK(Found() == Lines{"c:\\x\\a.tmp"});
    CHECK(machine.journal.Calls("OpenForReading").empty());
}

TEST_CASE_FIXTURE(Fixture, "a junction is walked like a folder, by its own path") {
    File("C:\\data\\a.tmp");
    disk.MakeLink("C:\\link", "C:\\data");
    disk.MakeLink("C:\\dead", "C:\\nowhere");
    CHECK(Found() == Lines{"c:\\data\\a.tmp", "c:\\link\\a.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "a junction onto its own folder ends, as paths do not grow for ever") {
    File("C:\\x\\a.tmp");
    disk.MakeLink("C:\\x\\loop", "C:\\x");
    const Lines rows = Found();
    CHECK(rows.size() > 10);
    CHECK(rows.size() < 130);
    CHECK(rows.back() == "c:\\x\\a.tmp");
    for (const std::string& row : rows) CHECK(row.size() < 260);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "a folder whose path leaves no room for a search is passed over") {
    std::string path = "C:\\x";
    while (path.size() < 258) path += "\\12345678";
    File(path + "\\a.tmp");
    File("C:\\y\\b.tmp");
    CHECK(Found() == Lines{"c:\\y\\b.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "umlauts and letters beyond the code page are listed as they are") {
    File("C:\\Größe\\Ä.tmp");
    File("C:\\Größe\\日本.tmp");
    CHECK(Found() == Lines{"c:\\Größe\\Ä.tmp", "c:\\Größe\\日本.tmp"});
}

TEST_CASE_FIXTURE(Fixture,
                  "the labels show the current file, shortened, its full path and counts") {
    const std::string folder = "c:\\" + std::string(80, 'x');
    File("C" + folder.substr(1) + "\\a.tmp");
    File("C" + folder.substr(1) + "\\b.txt");
    std::vector<std::string> shown;
    std::string tip;
    machine.forms.onEvents = [&] {
        shown.push_back(frame.lblScannedFiles.Caption() + "|" + frame.lblHinweisTemp.Caption());
        tip = frame.lblScannedFiles.ToolTip();
    };
    disk.MakeFolder("C:\\later");
    Search();
    REQUIRE(shown.size() > 1);
    CHECK(shown.back() ==
          "c:\\" + std::string(48, 'x') + "...\\b.txt|Gescannte Dateien: 2 - davon Tempdateien: 1");
    CHECK(tip == folder + "\\b.txt");
}

TEST_CASE_FIXTURE(Fixture, "events run once for each folder and not for its files") {
    for (int i = 0; i < 50; ++i) File("C:\\x\\" + std::to_string(i) + ".tmp");
    int served = 0;
    machine.forms.onEvents = [&] { ++served; };
    Search();
    // The drive, x, WINDOWS and WINDOWS\Temp.
    CHECK(served == 4);
}

TEST_CASE_FIXTURE(Fixture, "what a search looks at is shown at once, file by file") {
    File("C:\\x\\a.txt");
    File("C:\\x\\b.tmp");
    cleanup_test::PaintedLines painted(*this);
    Search();
    CHECK(painted.lines == Lines{"c:\\x\\a.txt", "c:\\x\\b.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "a file is what it is when its turn comes, not when it was listed") {
    File("C:\\x\\sub\\s.txt");
    File("C:\\x\\filled.dat", 32, "");
    File("C:\\x\\filled.tmp", 32, "");
    File("C:\\x\\gone.tmp");
    File("C:\\x\\made read-only.tmp");
    File("C:\\x\\made a folder.tmp");
    Tick(frame.chkNullByteFiles);
    machine.folders.afterListing = [&](const std::string& path) {
        if (path != "c:\\x\\sub") return;
        disk.At("C:\\x\\filled.dat").content = "text";
        disk.At("C:\\x\\filled.tmp").content = "text";
        disk.At("C:\\x\\filled.tmp").modified = {2005, 1, 2, 3, 4, 5};
        disk.At("C:\\x\\made read-only.tmp").attributes = 33;
        disk.Erase(disk.At("C:\\x\\gone.tmp"));
        disk.Erase(disk.At("C:\\x\\made a folder.tmp"));
        disk.MakeFolder("C:\\x\\made a folder.tmp");
    };
    CHECK(Found() == Lines{"c:\\x\\filled.tmp"});
    CHECK(Column(1) == Lines{"4"});
    CHECK(Column(3) == Lines{"02.01.2005 03:04:05"});
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 4 Bytes - Gescannt: 6 Dateien");
}

TEST_CASE_FIXTURE(Fixture,
                  "a file whose path is too long to be asked for is listed as it was found") {
    const std::string folder = "c:\\x\\" + std::string(240, 'f');
    File(folder + "\\much too long.tmp", 32, "text");
    CHECK(Found() == Lines{folder + "\\much too long.tmp"});
    CHECK(Column(1) == Lines{"4"});
}

TEST_CASE_FIXTURE(Fixture, "only what would get a row is asked for once more") {
    File("C:\\x\\a.tmp");
    File("C:\\x\\b.txt");
    File("C:\\x\\c.txt", 32, "");
    const auto asked = [&] {
        machine.journal.Clear();
        Search();
        Lines names;
        for (const std::string& line : machine.journal.Calls("GetFileAttributesExW")) {
            const std::size_t start = line.find("c:\\x\\");
            if (start != std::string::npos) names.push_back(line.substr(start + 5, 5));
        }
        return names;
    };
    CHECK(asked() == Lines{"a.tmp"});
    Tick(frame.chkNullByteFiles);
    CHECK(asked() == Lines{"a.tmp", "c.txt"});
}

// The system would tell of "a.tmp" instead.
TEST_CASE_FIXTURE(Fixture, "a name with a dot behind it is listed as its folder tells it") {
    File("C:\\x\\a.tmp", 33);
    File("C:\\x\\~a.tmp.");
    CHECK(Found() == Lines{"c:\\x\\~a.tmp."});
    CHECK(machine.journal.Text().find("GetFileAttributesExW \"c:\\x\\~") == std::string::npos);
}
