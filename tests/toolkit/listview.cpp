#include "toolkit/listview.h"

#include <doctest/doctest.h>

#include "support/failureof.h"
#include "toolkit/journal.h"
#include "toolkit/keys.h"

using toolkit::Aspect;
using toolkit::ListView;
using Texts = std::vector<std::string>;

namespace {

struct ListViewFixture {
    NotingHost host;
    TestForm form{host};
    ListView& list = form.Add<ListView>("lvwFiles", toolkit::ListViewStyle{.checkBoxes = true});
    NotingView view;

    ListViewFixture() {
        list.AddColumn("Name");
        list.AddColumn("Größe (bytes)");
        list.SetView(&view);
    }

    void Fill(const Texts& texts) {
        for (const std::string& text : texts) list.AddRow(text);
    }

    Texts Column(int column = 0) const {
        Texts texts;
        for (int row = 0; row < list.Count(); ++row) texts.push_back(list.Text(row, column));
        return texts;
    }
};

}  // namespace

TEST_CASE_FIXTURE(ListViewFixture,
                  "a row goes behind the others, unticked, unselected, without sub-items") {
    CHECK(list.AddRow("eins", "1A") == 0);
    CHECK(list.AddRow("zwei", "2A") == 1);
    CHECK(list.Count() == 2);
    CHECK(Column() == Texts{"eins", "zwei"});
    CHECK(list.Text(1, 1).empty());
    CHECK(list.Key(1) == "2A");
    CHECK_FALSE(list.Ticked(1));
    CHECK_FALSE(list.Selected(1));
    CHECK(list.SelectedRow() == ListView::NoRow);
}

TEST_CASE_FIXTURE(ListViewFixture, "equal rows stand side by side") {
    Fill({"a.tmp", "a.tmp"});
    list.SetText(1, 1, "0");
    CHECK(Column() == Texts{"a.tmp", "a.tmp"});
    CHECK(Column(1) == Texts{"", "0"});
}

TEST_CASE_FIXTURE(ListViewFixture,
                  "a row that does not exist is a failure: none is 91, any other 35600") {
    Fill({"eins"});
    CHECK(FailureOf([&] { list.Text(ListView::NoRow); }) == runtime::ObjectNotSet);
    CHECK(FailureOf([&] { list.Text(1); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.Text(-2); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.SetText(1, 0, "x"); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.SetTicked(1, true); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.SetSelected(1, true); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.RemoveRow(1); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.EnsureVisible(1); }) == runtime::IndexOutOfBounds);
    CHECK(Column() == Texts{"eins"});
}

TEST_CASE_FIXTURE(ListViewFixture,
                  "a column that does not exist is a failure, except for the row's own text") {
    Fill({"eins"});
    CHECK(FailureOf([&] { list.Text(0, 2); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.SetText(0, -1, "x"); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.SetSortKey(2); }) == runtime::IndexOutOfBounds);
    CHECK(FailureOf([&] { list.FitColumn(2, true); }) == runtime::IndexOutOfBounds);
    ListView& bare = form.Add<ListView>("lvwBare");
    bare.AddRow("ohne Spalten");
    CHECK(bare.Text(0) == "ohne Spalten");
}

TEST_CASE_FIXTURE(ListViewFixture, "removing the first row again and again empties the list") {
    Fill({"eins", "zwei", "drei"});
    list.RemoveRow(0);
    CHECK(Column() == Texts{"zwei", "drei"});
    list.RemoveRow(0);
    list.RemoveRow(0);
    CHECK(list.Count() == 0);
    CHECK(FailureOf([&] { list.RemoveRow(0); }) == runtime::IndexOutOfBounds);
}

TEST_CASE_FIXTURE(ListViewFixture, "a row removed from the middle takes its tick along") {
    Fill({"eins", "zwei", "drei"});
    list.SetTicked(1, true);
    list.SetTicked(2, true);
    list.RemoveRow(1);
    CHECK(Column() == Texts{"eins", "drei"});
    CHECK_FALSE(list.Ticked(0));
    CHECK(list.Ticked(1));
}

TEST_CASE_FIXTURE(ListViewFixture, "clearing takes rows and selection, not the columns") {
    Fill({"eins", "zwei"});
    list.SetSelected(1, true);
    list.Clear();
    CHECK(list.Count() == 0);
    CHECK(list.SelectedRow() == ListView::NoRow);
    CHECK(list.Columns() == Texts{"Name", "Größe (bytes)"});
    Fill({"neu"});
    CHECK(list.SelectedRow() == ListView::NoRow);
}

TEST_CASE_FIXTURE(ListViewFixture, "without multiple selection one row at a time is selected") {
    Fill({"eins", "zwei"});
    list.SetSelected(0, true);
    list.SetSelected(1, true);
    CHECK_FALSE(list.Selected(0));
    CHECK(list.SelectedRow() == 1);
    list.SetSelected(1, false);
    CHECK(list.SelectedRow() == ListView::NoRow);
}

TEST_CASE_FIXTURE(ListViewFixture,
                  "of several selected rows the one with the focus is the selected row") {
    ListView& several =
        form.Add<ListView>("lvwSoftware", toolkit::ListViewStyle{.multiSelect = true});
    for (const char* name : {"A", "B", "C", "D"}) several.AddRow(name);
    several.SelectionMade(1, 3, true);
    several.FocusMoved(2);
    CHECK(several.SelectedRow() == 2);
    SUBCASE("and the first of them when the focus is elsewhere") {
        several.FocusMoved(0);
        CHECK(several.SelectedRow() == 1);
    }
    SUBCASE("and the next one in the list when that row goes") {
        several.RemoveRow(2);
        CHECK(several.SelectedRow() == 1);
    }
    SUBCASE("and none when the selection goes, wherever the focus is") {
        several.SelectionMade(0, 3, false);
        CHECK(several.SelectedRow() == ListView::NoRow);
    }
    SUBCASE("wherever the sorting takes it") {
        several.SetSortOrder(ListView::Descending);
        several.SetSorted(true);
        CHECK(several.SelectedRow() == 1);
        CHECK(several.Text(several.SelectedRow()) == "C");
        CHECK(several.Selected(0));
        CHECK(several.Selected(2));
        CHECK_FALSE(several.Selected(3));
    }
}

TEST_CASE_FIXTURE(ListViewFixture, "a window's selection beyond the rows is passed over") {
    Fill({"eins"});
    list.SelectionMade(-1, 5, true);
    CHECK(list.SelectedRow() == 0);
    list.FocusMoved(7);
    CHECK_FALSE(list.HasFocus(0));
}

TEST_CASE_FIXTURE(ListViewFixture, "what the program does to a list raises no events") {
    int events = 0;
    const auto count = [&] { ++events; };
    list.onClick = list.onDoubleClick = list.onRightButton = count;
    list.onColumnClick = list.onKeyDown = [&](int) { ++events; };
    Fill({"b", "a"});
    list.SetSelected(0, true);
    list.SetTicked(0, true);
    list.SetSorted(true);
    list.RemoveRow(0);
    list.Clear();
    CHECK(events == 0);
}

TEST_CASE_FIXTURE(ListViewFixture, "a disabled list hears nothing of the user") {
    Journal heard;
    list.onClick = [&] { heard.push_back("click"); };
    list.onDoubleClick = [&] { heard.push_back("twice"); };
    list.onRightButton = [&] { heard.push_back("right"); };
    list.onColumnClick = [&](int column) { heard.push_back("column " + std::to_string(column)); };
    list.onKeyDown = [&](int key) { heard.push_back("key " + std::to_string(key)); };
    const auto doAll = [&] {
        list.Click();
        list.DoubleClick();
        list.PressRightButton();
        list.ClickColumn(1);
        list.PressKey(toolkit::key::Delete);
    };
    doAll();
    CHECK(heard == Journal{"click", "twice", "right", "column 1", "key 46"});
    list.SetEnabled(false);
    doAll();
    CHECK(heard.size() == 5);
}

TEST_CASE_FIXTURE(ListViewFixture, "the window is told what has changed, and only that") {
    Fill({"a", "b"});
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items, Aspect::Items});
    view.shown.clear();
    list.SetTicked(0, false);
    list.SetSelected(0, false);
    CHECK(view.shown.empty());
    list.SetSelected(0, true);
    CHECK(view.shown == std::vector<Aspect>{Aspect::Value});
    view.shown.clear();
    list.RemoveRow(0);
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items});
    view.shown.clear();
    list.SetSelected(0, true);
    list.AddRow("c");
    CHECK(view.shown == std::vector<Aspect>{Aspect::Value, Aspect::Items});
}

TEST_CASE_FIXTURE(ListViewFixture,
                  "rows that move below a selected one make the window select anew") {
    Fill({"a", "b", "c"});
    list.SetSelected(2, true);
    view.shown.clear();
    list.RemoveRow(0);
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items, Aspect::Value});
    CHECK(list.SelectedRow() == 1);
}

TEST_CASE_FIXTURE(ListViewFixture, "rows that move below the focus make the window place it anew") {
    Fill({"a", "b", "c"});
    list.SetSelected(2, true);
    SUBCASE("with nothing selected") {
        list.SetSelected(2, false);
    }
    SUBCASE("with a selected row elsewhere that has it no longer") {
        list.SelectionMade(0, 2, false);
        list.SelectionMade(1, 1, true);
        list.FocusMoved(7);
        CHECK_FALSE(list.HasFocus(2));
    }
    view.shown.clear();
    list.RemoveRow(0);
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items, Aspect::Value});
}

TEST_CASE_FIXTURE(ListViewFixture, "rows in order are not moved by asking for the order again") {
    Fill({"b", "a"});
    list.SetSorted(true);
    list.SetText(0, 0, "c");
    view.shown.clear();
    list.SetSorted(true);
    CHECK(Column() == Texts{"b", "c"});
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items});
    list.SetSorted(true);
    CHECK(view.shown == std::vector<Aspect>{Aspect::Items});
}
