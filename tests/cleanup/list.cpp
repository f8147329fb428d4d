#include <doctest/doctest.h>

#include <set>
#include <utility>

#include "cleanup/fixture.h"
#include "toolkit/listhelpers.h"

using cleanup_test::Fixture;
using cleanup_test::Lines;
using toolkit::ListView;

TEST_CASE_FIXTURE(Fixture, "the list has four columns and check boxes, the deletion is disabled") {
    CHECK(list.Columns() == Lines{"Name", "Größe (bytes)", "Typ", "Zuletzt geändert"});
    CHECK(list.Style().checkBoxes);
    CHECK_FALSE(frame.cmdCleanTempFiles.Enabled());
    CHECK(frame.cmdSearchTempFiles.Caption() == "Suchen");
}

TEST_CASE_FIXTURE(Fixture, "each control of the frame has its own caption") {
    const std::pair<const char*, const char*> captions[] = {
        {"Frame8", "Temporäre Dateien"},
        {"chkScanAll", "Alle lokalen Festplatten scannen"},
        {"chkDeleteThumbs", "Bildvorschau Archive (Thumbs.db) löschen"},
        {"chkNullByteFiles", "Nach 0 Byte Dateien suchen"},
        {"chkRecentDocFolder", "Ordner \"Zuletzt verwendete Dokumente \" löschen"},
        {"chkCleanUserTempFolder", "Tempverzeichnis des angemeldeten Benutzers säubern"},
        {"chkMoveToRecycleBin", "Gefundene Dateien in den Papierkorb verschieben"},
        {"chkCleanRecycleBin", "Papierkorb leeren"},
        {"cmdCleanBinDirect", "Sofort"},
        {"cmdSearchTempFiles", "Suchen"},
        {"cmdCleanTempFiles", "Dateien löschen"},
    };
    for (const auto& [name, caption] : captions) {
        CAPTURE(std::string(name));
        CHECK(form.FindControl(name)->Caption() == caption);
    }
}

TEST_CASE_FIXTURE(Fixture, "each control of the frame stands in its layout once") {
    std::multiset<std::string> names;
    const auto collect = [&](const auto& self, const toolkit::Box& box) -> void {
        if (box.control) names.insert(box.control->Name());
        for (const toolkit::Box& child : box.children) self(self, child);
    };
    collect(collect, frame.Layout());
    std::multiset<std::string> made;
    for (const auto& control : form.Controls()) made.insert(control->Name());
    CHECK(names == made);
}

TEST_CASE_FIXTURE(Fixture, "the first click on a header sorts descending, each further one turns") {
    for (const char* name : {"b", "c", "a"}) File(std::string("C:\\") + name + ".tmp");
    Search();
    list.ClickColumn(0);
    CHECK(list.SortOrder() == ListView::Descending);
    CHECK(Rows() == Lines{"c:\\c.tmp", "c:\\b.tmp", "c:\\a.tmp"});
    list.ClickColumn(0);
    CHECK(Rows() == Lines{"c:\\a.tmp", "c:\\b.tmp", "c:\\c.tmp"});
    list.ClickColumn(2);
    CHECK(list.SortKey() == 2);
    CHECK(list.SortOrder() == ListView::Descending);
}

TEST_CASE_FIXTURE(Fixture, "a click on another header sorts a sorted list once") {
    struct Counting final : toolkit::ControlView {
        explicit Counting(ListView& on) : list(on) { list.SetView(this); }
        ~Counting() override { list.SetView(nullptr); }
        void Refresh(toolkit::Aspect) override { ++times; }
        void Repaint() override {}
        bool PointerIsOver() const override { return false; }
        void TakeFocus() override {}
        void CaptureMouse() override {}
        void MoveFocus(bool) override {}

        ListView& list;
        int times = 0;
    };
    File("C:\\a.tmp");
    File("C:\\b.old");
    Search();
    list.ClickColumn(0);
    const Counting counting(list);
    list.ClickColumn(2);
    CHECK(counting.times == 1);
    CHECK(Rows() == Lines{"c:\\b.old", "c:\\a.tmp"});
}

TEST_CASE_FIXTURE(Fixture, "sizes sort as texts") {
    File("C:\\a.tmp").toldSize = 9;
    File("C:\\b.tmp").toldSize = 10;
    File("C:\\c.tmp").toldSize = 200;
    Search();
    list.ClickColumn(1);
    CHECK(Column(1) == Lines{"9", "200", "10"});
}

TEST_CASE_FIXTURE(Fixture, "a new search neither resets the order nor the turning") {
    File("C:\\a.tmp");
    Search();
    list.ClickColumn(0);
    Search();
    CHECK(list.Sorted());
    CHECK(list.SortOrder() == ListView::Descending);
    list.ClickColumn(0);
    CHECK(list.SortOrder() == ListView::Ascending);
}

TEST_CASE_FIXTURE(Fixture, "in a sorted list size, type and date go to the last row") {
    File("C:\\a.tmp", 32, "1");
    File("C:\\b.old", 32, "22");
    Search();
    list.ClickColumn(0);
    Search();
    CHECK(Rows() == Lines{"c:\\b.old", "c:\\a.tmp"});
    CHECK(Column(1) == Lines{"", "2"});
    CHECK(Column(2) == Lines{"", "OLD-Datei"});
    CHECK(list.Ticked(0));
    CHECK(list.Ticked(1));
    // A row without a size cannot be added up.
    REQUIRE(machine.messages.Shown().size() == 1);
    CHECK(machine.messages.Shown()[0].title == "Fehler 13");
}

TEST_CASE_FIXTURE(Fixture, "the menu ticks and unticks all rows") {
    File("C:\\a.tmp");
    File("C:\\b.tmp");
    Search();
    machine.menus.Pick("Alle Markierungen aufheben");
    list.PressRightButton();
    CHECK_FALSE(list.Ticked(0));
    CHECK_FALSE(list.Ticked(1));
    machine.menus.Pick("Alle markieren");
    list.PressRightButton();
    CHECK(list.Ticked(0));
    CHECK(list.Ticked(1));
    machine.menus.Dismiss();
    list.PressRightButton();
    CHECK(list.Ticked(0));
}

TEST_CASE_FIXTURE(Fixture, "the menu opens where the list wants it, and at the mouse otherwise") {
    File("C:\\a.tmp");
    Search();
    machine.menus.Dismiss();
    list.PressRightButton(toolkit::Point{30, 40});
    CHECK(machine.journal.Calls("TrackPopupMenu").back().find(" at 30,40 ") != std::string::npos);
    machine.menus.Dismiss();
    list.PressRightButton();
    CHECK(machine.journal.Calls("TrackPopupMenu").back().find(" at ") == std::string::npos);
}

TEST_CASE_FIXTURE(Fixture, "over an empty list no menu opens, and ticking all does nothing") {
    list.PressRightButton();
    CHECK(machine.journal.Lines().empty());
    frame.TickAll(true);
    frame.InitFilesView();
    CHECK(list.Count() == 0);
}

TEST_CASE_FIXTURE(Fixture, "columns are fitted up to the number of columns minus those excluded") {
    const auto sent = [&](bool headers, int excluded) {
        machine.journal.Clear();
        toolkit::AdjustColumnWidth(list, headers, excluded);
        return machine.journal.Lines();
    };
    CHECK(sent(false, 3) ==
          Lines{"SendMessageA lvwFiles 4126 0 -1", "SendMessageA lvwFiles 4126 1 -1"});
    CHECK(sent(true, 1).size() == 4);
    // The one behind the last is no column.
    CHECK(sent(true, 0).size() == 4);
    CHECK(sent(true, 5).empty());
}
