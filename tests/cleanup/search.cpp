#include <doctest/doctest.h>

#include <new>

#include "cleanup/fixture.h"

using cleanup_test::Fixture;
using cleanup_test::Lines;
using platform::simulated::ShownMessage;

TEST_CASE_FIXTURE(Fixture, "an empty result says so and leaves the deletion disabled") {
    Search();
    CHECK(list.Count() == 0);
    CHECK(frame.lblHinweisTemp.Caption() == "Keine Tempdateien gefunden!");
    CHECK(frame.lblScannedFiles.Caption() == "Suchvorgang abgeschlossen!");
    CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
}

TEST_CASE_FIXTURE(Fixture, "the tip with the path of the current file goes with the search") {
    File("C:\\x\\a.tmp");
    std::string during;
    machine.forms.onEvents = [&] { during += frame.lblScannedFiles.ToolTip(); };
    disk.MakeFolder("C:\\y");
    Search();
    CHECK(during.find("a.tmp") != std::string::npos);
    CHECK(frame.lblScannedFiles.Caption() == "Suchvorgang abgeschlossen!");
    CHECK(frame.lblScannedFiles.ToolTip() == "");
}

TEST_CASE_FIXTURE(Fixture, "a result tells rows, bytes and files without grouping signs") {
    for (int i = 0; i < 1200; ++i) File("C:\\x\\" + std::to_string(i) + ".txt");
    File("C:\\x\\a.tmp").toldSize = 1234567;
    File("C:\\x\\b.tmp").toldSize = 1;
    Search();
    CHECK(frame.lblHinweisTemp.Caption() ==
          "2 Tempdateien belegen 1234568 Bytes - Gescannt: 1202 Dateien");
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Fixture, "a new search begins with an empty list and counts from 0") {
    File("C:\\x\\a.tmp");
    Search();
    Search();
    CHECK(list.Count() == 1);
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 1 Bytes - Gescannt: 1 Dateien");
    disk.Erase(disk.At("C:\\x\\a.tmp"));
    Search();
    CHECK(list.Count() == 0);
    CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Fixture, "the list is locked for the search, then all its columns are fitted") {
    File("C:\\x\\a.tmp");
    Search();
    Lines told;
    for (const std::string& line : machine.journal.Lines()) {
        if (line.starts_with("LockWindow") || line.starts_with("SendMessage") ||
            line == "FindFirstFileW \"c:\\x\" -> 1") {
            told.push_back(line);
        }
    }
    CHECK(told == Lines{"LockWindowUpdate lvwFiles", "FindFirstFileW \"c:\\x\" -> 1",
                        "LockWindowUpdate 0", "SendMessageA lvwFiles 4126 0 -2",
                        "SendMessageA lvwFiles 4126 1 -2", "SendMessageA lvwFiles 4126 2 -2",
                        "SendMessageA lvwFiles 4126 3 -2"});
}

TEST_CASE_FIXTURE(Fixture,
                  "the folder of recent documents is listed whole when its box is ticked") {
    machine.shell.specialFolders[8] = "C:\\Recent";
    File("C:\\Recent\\a.lnk");
    File("C:\\Recent\\sub\\b.txt");
    File("C:\\Recent\\sub\\c.txt", 33);
    CHECK(Found().empty());
    Tick(frame.chkRecentDocFolder);
    CHECK(Found() == Lines{"C:\\Recent\\sub\\b.txt", "C:\\Recent\\a.lnk"});
}

TEST_CASE_FIXTURE(Fixture, "the user's temp folder is listed whole, each sub-folder as a row too") {
    File("C:\\UserTemp\\a.doc", 32, "12");
    File("C:\\UserTemp\\sub\\deep\\b.doc", 32, "345");
    disk.MakeFolder("C:\\UserTemp\\empty");
    Tick(frame.chkCleanUserTempFolder);
    CHECK(Found() == Lines{"C:\\UserTemp\\sub\\deep\\b.doc", "C:\\UserTemp\\a.doc",
                           "C:\\UserTemp\\sub", "C:\\UserTemp\\empty"});
    CHECK(Column(1) == Lines{"3", "2", "3", "0"});
    CHECK(Column(2) == Lines{"DOC-Datei", "DOC-Datei", "Dateiordner", "Dateiordner"});
    CHECK(list.Ticked(2));
    CHECK(frame.lblHinweisTemp.Caption() == "4 Tempdateien belegen 8 Bytes - Gescannt: 4 Dateien");
}

TEST_CASE_FIXTURE(Fixture, "the folder rules hold on the walks through whole folders, too") {
    File("C:\\UserTemp\\SendToOld\\a.doc");
    Tick(frame.chkCleanUserTempFolder);
    CHECK(Found() == Lines{"C:\\UserTemp\\SendToOld"});
}

TEST_CASE_FIXTURE(Fixture, "a hidden sub-folder of the temp folder has a row but is not walked") {
    disk.MakeFolder("C:\\UserTemp\\h", 22);
    File("C:\\UserTemp\\h\\a.doc");
    Tick(frame.chkCleanUserTempFolder);
    CHECK(Found() == Lines{"C:\\UserTemp\\h"});
}

TEST_CASE_FIXTURE(Fixture,
                  "the folders in Windows' Temp are listed whatever is ticked and selected") {
    disk.MakeFolder("D:\\x");
    frame.drvSelect.SetDrive("D:\\");
    File("C:\\WINDOWS\\Temp\\sub\\a.tmp", 32, "1234");
    File("C:\\WINDOWS\\Temp\\own.tmp");
    CHECK(Found() == Lines{"C:\\WINDOWS\\Temp\\sub"});
    CHECK(list.Text(0, 1) == "4");
    CHECK(list.Text(0, 2) == "Dateiordner");
}

TEST_CASE_FIXTURE(Fixture, "folders that are not there are passed over, each by itself") {
    Tick(frame.chkRecentDocFolder);
    Tick(frame.chkCleanUserTempFolder);
    disk.Erase(disk.At("C:\\WINDOWS\\Temp"));
    File("C:\\x\\a.tmp");
    CHECK(Found() == Lines{"c:\\x\\a.tmp"});
    CHECK(machine.messages.Shown().empty());
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Fixture, "a folder that is not there does not bring the one before again") {
    machine.shell.specialFolders[8] = "C:\\Recent";
    File("C:\\Recent\\sub\\a.lnk");
    Tick(frame.chkRecentDocFolder);
    Tick(frame.chkCleanUserTempFolder);
    CHECK(Found() == Lines{"C:\\Recent\\sub\\a.lnk"});
}

TEST_CASE_FIXTURE(Fixture,
                  "places that the system does not tell are passed over like missing ones") {
    machine.shell.specialFolders.erase(8);
    machine.systemFacts.tempPath = "";
    Tick(frame.chkRecentDocFolder);
    Tick(frame.chkCleanUserTempFolder);
    File("C:\\x\\a.tmp");
    CHECK(Found() == Lines{"c:\\x\\a.tmp"});
    CHECK(machine.messages.Shown().empty());
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Fixture, "recent documents come first, then the temp folders, then the drive") {
    machine.shell.specialFolders[8] = "C:\\Recent";
    File("C:\\Recent\\r.lnk");
    File("C:\\UserTemp\\t.doc");
    File("C:\\UserTemp\\sub\\u.doc");
    File("C:\\WINDOWS\\Temp\\w\\v.doc");
    File("C:\\x\\a.tmp");
    Tick(frame.chkRecentDocFolder);
    Tick(frame.chkCleanUserTempFolder);
    CHECK(Found() == Lines{"C:\\Recent\\r.lnk", "C:\\UserTemp\\sub\\u.doc", "C:\\UserTemp\\t.doc",
                           "C:\\UserTemp\\sub", "C:\\WINDOWS\\Temp\\w", "c:\\x\\a.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "an unreadable folder in Temp ends the search at its result line") {
    File("C:\\WINDOWS\\Temp\\a\\x.dat", 32, "12");
    disk.MakeFolder("C:\\WINDOWS\\Temp\\b\\locked").unreadable = true;
    File("C:\\WINDOWS\\Temp\\c\\x.dat");
    File("C:\\x\\a.tmp");
    CHECK(Found() == Lines{"C:\\WINDOWS\\Temp\\a"});
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{{"Fehler 70", "Zugriff verweigert", 16}});
    // The total was not made any more, nor the deletion enabled.
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 0 Bytes - Gescannt: 0 Dateien");
    CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
    CHECK(machine.journal.Calls("LockWindowUpdate") ==
          Lines{"LockWindowUpdate lvwFiles", "LockWindowUpdate 0"});
}

TEST_CASE_FIXTURE(Fixture, "a sub-folder that vanishes before its size is asked for has no row") {
    disk.MakeFolder("C:\\WINDOWS\\Temp\\a");
    disk.MakeFolder("C:\\WINDOWS\\Temp\\b");
    machine.folders.afterListing = [&](const std::string& path) {
        if (path == "C:\\WINDOWS\\Temp") disk.Erase(disk.At("C:\\WINDOWS\\Temp\\a"));
    };
    CHECK(Found() == Lines{"C:\\WINDOWS\\Temp\\b"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture,
                  "a sub-folder is what it is when its size has been told, if there at all") {
    disk.MakeFolder("C:\\WINDOWS\\Temp\\a");
    disk.MakeFolder("C:\\WINDOWS\\Temp\\b");
    machine.folders.afterListing = [&](const std::string& path) {
        if (path == "C:\\WINDOWS\\Temp\\a") disk.Erase(disk.At(path));
        if (path == "C:\\WINDOWS\\Temp\\b") disk.At(path).modified = {2005, 1, 2, 3, 4, 5};
    };
    CHECK(Found() == Lines{"C:\\WINDOWS\\Temp\\b"});
    CHECK(list.Text(0, 3) == "02.01.2005 03:04:05");
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Fixture, "a failure of listing Windows' Temp is told unless it is not there") {
    for (int number : {5, 7, 70}) {
        machine.faults.FailAll("FindFirstFileW", number);
        Search();
        REQUIRE_FALSE(machine.messages.Shown().empty());
        CHECK(machine.messages.Shown().back().title == "Fehler " + std::to_string(number));
        machine.faults.Clear();
    }
}

TEST_CASE_FIXTURE(Fixture, "2147483647 bytes are told; one more is an overflow with its message") {
    File("C:\\x\\a.tmp").toldSize = 2147483646;
    auto& last = File("C:\\x\\b.tmp");
    last.toldSize = 1;
    Search();
    CHECK(machine.messages.Shown().empty());
    CHECK(frame.lblHinweisTemp.Caption() ==
          "2 Tempdateien belegen 2147483647 Bytes - Gescannt: 2 Dateien");
    last.toldSize = 2;
    machine.journal.Clear();
    Search();
    CHECK(machine.messages.Shown() == std::vector<ShownMessage>{{"Fehler 6", "Überlauf", 16}});
    CHECK(frame.lblHinweisTemp.Caption() ==
          "2 Tempdateien belegen 2147483646 Bytes - Gescannt: 2 Dateien");
    CHECK(machine.journal.Calls("LockWindowUpdate") ==
          Lines{"LockWindowUpdate lvwFiles", "LockWindowUpdate 0"});
    // By then the deletion was enabled.
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Fixture, "one size of 2147483648 bytes is an overflow by itself") {
    File("C:\\x\\a.tmp").toldSize = 2147483648;
    Search();
    CHECK(machine.messages.Shown() == std::vector<ShownMessage>{{"Fehler 6", "Überlauf", 16}});
    CHECK(list.Text(0, 1) == "2147483648");
    CHECK(list.Count() == 1);
    CHECK(machine.journal.Lines().back().starts_with("SendMessageA lvwFiles 4126 3"));
}

TEST_CASE_FIXTURE(Fixture, "a message that cannot be shown keeps no search from its end") {
    File("C:\\x\\a.tmp").toldSize = 2147483648;
    machine.faults.FailOn("Fehler 6", 7);
    Search();
    CHECK(machine.journal.Calls("LockWindowUpdate") ==
          Lines{"LockWindowUpdate lvwFiles", "LockWindowUpdate 0"});
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
    CHECK(frame.lblScannedFiles.Caption() == "Suchvorgang abgeschlossen!");
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 0 Bytes - Gescannt: 1 Dateien");
}

TEST_CASE_FIXTURE(Fixture, "whatever ends a search, the list is unlocked and the button its own") {
    File("C:\\x\\a.tmp");
    File("C:\\x\\b.tmp");
    machine.forms.onEvents = [&] {
        machine.forms.onEvents = nullptr;
        // A stop is asked for, too, and must not be left for the next search.
        Search();
        throw std::bad_alloc();
    };
    CHECK_THROWS_AS(Search(), std::bad_alloc);
    CHECK(machine.journal.Calls("LockWindowUpdate") ==
          Lines{"LockWindowUpdate lvwFiles", "LockWindowUpdate 0"});
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
    frame.cmdSearchTempFiles.SetEnabled(true);
    CHECK(Found() == Lines{"c:\\x\\a.tmp", "c:\\x\\b.tmp"});
}
