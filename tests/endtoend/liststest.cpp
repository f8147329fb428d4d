#include <doctest/doctest.h>

#include "endtoend/lists.h"
#include "endtoend/program.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

using Texts = std::vector<std::string>;

struct ListProgram : Program {
    ListProgram() : Program(OwnFolder() + "\\lists.exe"), rows(Wait("lvwFiles")) {}

    Texts Names() const {
        Texts names;
        for (int row = 0; row < rows.Count(); ++row) names.push_back(rows.Texts(row)[0]);
        return names;
    }

    // Waits until the program says that.
    void WaitNote(const std::string& note) const {
        Until(note, [&] { return Text("frmLists") == note; });
    }

    const Rows rows;
};

TEST_CASE_FIXTURE(ListProgram,
                  "a list view's headers, texts, ticks and widths are seen from outside") {
    CHECK(rows.Headers() == Texts{"Name", "Größe (bytes)", "Typ"});
    CHECK(rows.Count() == 3);
    CHECK(rows.Texts(1) == Texts{"C:\\Temp\\Übung.tmp", "512", "TMP-Datei"});
    CHECK_FALSE(rows.Ticked(0));
    CHECK(rows.Ticked(1));
    CHECK_FALSE(rows.Selected(1));
    CHECK(rows.ColumnWidth(0) > rows.ColumnWidth(1));
}

TEST_CASE_FIXTURE(ListProgram, "a row is ticked, unticked, clicked once and twice from outside") {
    rows.SetTicked(2, true);
    rows.SetTicked(1, false);
    CHECK(rows.Ticked(2));
    CHECK_FALSE(rows.Ticked(1));
    rows.Click(2);
    WaitNote("C:\\Temp\\a.tmp geklickt");
    CHECK(rows.Selected(2));
    rows.DoubleClick(0);
    WaitNote("C:\\Temp\\b.tmp doppelt");
    CHECK_THROWS_AS(rows.Click(3), Failed);
}

TEST_CASE_FIXTURE(ListProgram, "a click on a header sorts, the first one downwards") {
    rows.ClickHeader(0);
    Until("the order", [&] {
        return Names() == Texts{"C:\\Temp\\Übung.tmp", "C:\\Temp\\b.tmp", "C:\\Temp\\a.tmp"};
    });
    CHECK(rows.Ticked(0));
    rows.ClickHeader(0);
    Until("the order", [&] {
        return Names() == Texts{"C:\\Temp\\a.tmp", "C:\\Temp\\b.tmp", "C:\\Temp\\Übung.tmp"};
    });
}

TEST_CASE_FIXTURE(ListProgram, "an item of the list's menu is chosen with the right button") {
    rows.PressRightButton(0);
    ChooseFromMenu(*this, 1);
    Until("all ticks", [&] { return rows.Ticked(0) && rows.Ticked(1) && rows.Ticked(2); });
    CHECK(rows.Selected(0));
    rows.PressRightButton(2);
    ChooseFromMenu(*this, 2);
    Until("no ticks", [&] { return !rows.Ticked(0) && !rows.Ticked(1) && !rows.Ticked(2); });
}

TEST_CASE_FIXTURE(ListProgram, "the lines of list and combo boxes are seen from outside") {
    CHECK(LinesOf(Wait("List1")) ==
          Texts{"Cookie:jörg@quillmore.example/", "http://quillmore.example/"});
    CHECK(LinesOf(Wait("drvSelect")) == Texts{"a:", "c: [SYSTEM]", "d:"});
    CHECK(Text("drvSelect") == "c: [SYSTEM]");
}

}  // namespace
}  // namespace endtoend
