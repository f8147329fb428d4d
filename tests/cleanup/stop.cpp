#include <doctest/doctest.h>

#include "cleanup/fixture.h"

// The two ways to stop a search: the button, which stops all of it, and Escape, which ends only the
// folder that is being read or entered.

using cleanup_test::Fixture;
using cleanup_test::Lines;

namespace {

struct Tree : Fixture {
    int served = 0;

    // The walk enters c:\, WINDOWS, Temp, one, one\sub, two.
    Tree() {
        for (const char* folder : {"one\\sub", "one", "two"}) {
            for (const char* name : {"a", "b", "c"}) {
                File("C:\\" + std::string(folder) + "\\" + name + ".tmp");
            }
        }
    }

    // Runs while the n-th folder, counted from 1, lets events through.
    void WhenEntering(int folder, std::function<void()> action) {
        machine.forms.onEvents = [=, this] {
            if (++served == folder) action();
        };
    }
    // The n-th asking for Escape, counted from 1, finds it pressed.
    void EscapeAt(int poll, std::int16_t state = -32768) {
        machine.keyboard.escape.assign(static_cast<std::size_t>(poll - 1), 0);
        machine.keyboard.escape.push_back(state);
    }
};

// Askings up to the one of the folder's own entry: each folder asks once at its entry and once
// behind each file.
constexpr int EntryOfOne = 4;
constexpr int EntryOfSub = 5;
constexpr int FirstFileOfSub = 6;

}  // namespace

TEST_CASE_FIXTURE(Tree, "while a search runs the button says Stop and is enabled") {
    std::string caption;
    frame.lblHinweisTemp.SetVisible(false);
    WhenEntering(2, [&] {
        caption = frame.cmdSearchTempFiles.Caption();
        CHECK(frame.cmdSearchTempFiles.Enabled());
        CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
        CHECK(frame.lblHinweisTemp.Visible());
    });
    Search();
    CHECK(caption == "Stop");
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
}

TEST_CASE_FIXTURE(Tree, "a stop by button disables the button until the next poll") {
    // As the button stands when the files' captions are painted, from its press on.
    std::vector<bool> enabled;
    WhenEntering(5, [&] {
        Search();
        CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
        enabled.push_back(frame.cmdSearchTempFiles.Enabled());
        machine.forms.onEvents = [&] { enabled.push_back(frame.cmdSearchTempFiles.Enabled()); };
    });
    Search();
    REQUIRE(enabled.size() > 1);
    CHECK_FALSE(enabled[0]);
    CHECK(enabled[1]);
    CHECK(frame.cmdSearchTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Tree,
                  "after a stop by button each folder that was entered visits one more file") {
    WhenEntering(5, [&] { Search(); });
    Search();
    // one\sub is left at its entry, one visits its first file, two is left at its entry.
    CHECK(Rows() == Lines{"c:\\one\\a.tmp"});
    CHECK(frame.lblHinweisTemp.Caption() == "1 Tempdateien belegen 1 Bytes - Gescannt: 1 Dateien");
    CHECK(frame.lblScannedFiles.Caption() == "Suchvorgang abgeschlossen!");
    CHECK(frame.cmdCleanTempFiles.Enabled());
}

TEST_CASE_FIXTURE(Tree, "a stop before anything was found still ends with its result line") {
    WhenEntering(1, [&] { Search(); });
    Search();
    CHECK(frame.lblHinweisTemp.Caption() == "Keine Tempdateien gefunden!");
}

TEST_CASE_FIXTURE(Tree, "the stop is forgotten by the next search") {
    WhenEntering(1, [&] { Search(); });
    Search();
    machine.forms.onEvents = nullptr;
    Search();
    CHECK(list.Count() == 9);
}

TEST_CASE_FIXTURE(Tree, "a stop by button also stops what comes after the folder being walked") {
    Tick(frame.chkCleanUserTempFolder);
    File("C:\\UserTemp\\u.txt");
    File("C:\\UserTemp\\sub\\v.txt");
    WhenEntering(1, [&] { Search(); });
    Search();
    // The direct sub-folders are listed all the same, as that is no walk.
    CHECK(Rows() == Lines{"C:\\UserTemp\\sub"});
}

TEST_CASE_FIXTURE(Tree, "Escape behind a file ends that folder, and the search goes on") {
    EscapeAt(FirstFileOfSub);
    Search();
    CHECK(Rows() == Lines{"c:\\one\\sub\\a.tmp", "c:\\one\\a.tmp", "c:\\one\\b.tmp",
                          "c:\\one\\c.tmp", "c:\\two\\a.tmp", "c:\\two\\b.tmp", "c:\\two\\c.tmp"});
}

TEST_CASE_FIXTURE(Tree, "Escape at the entry of a folder leaves out that one alone") {
    EscapeAt(EntryOfSub);
    Search();
    CHECK(list.Count() == 6);
    CHECK(Rows().front() == "c:\\one\\a.tmp");
}

TEST_CASE_FIXTURE(Tree, "Escape at the entry of a folder leaves out those below it, too") {
    EscapeAt(EntryOfOne);
    Search();
    CHECK(Rows() == Lines{"c:\\two\\a.tmp", "c:\\two\\b.tmp", "c:\\two\\c.tmp"});
}

TEST_CASE_FIXTURE(Tree, "an Escape that was pressed meanwhile and is up again counts") {
    EscapeAt(EntryOfSub, 1);
    Search();
    CHECK(list.Count() == 6);
}

TEST_CASE_FIXTURE(Tree, "Escape held down leaves out folder after folder") {
    machine.keyboard.escape.assign(1000, -32768);
    Search();
    CHECK(list.Count() == 0);
    CHECK(machine.keyboard.escape.size() == 999);
}

TEST_CASE_FIXTURE(Tree, "Escape enables the button") {
    WhenEntering(2, [&] { frame.cmdSearchTempFiles.SetEnabled(false); });
    EscapeAt(2);
    Search();
    CHECK(frame.cmdSearchTempFiles.Enabled());
}
