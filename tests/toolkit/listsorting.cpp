#include <doctest/doctest.h>

#include "support/failureof.h"
#include "toolkit/journal.h"
#include "toolkit/listview.h"

using toolkit::ListView;
using Texts = std::vector<std::string>;

namespace {

struct SortingFixture {
    NotingHost host;
    TestForm form{host};
    ListView& list = form.Add<ListView>("lvwFiles", toolkit::ListViewStyle{.checkBoxes = true});

    SortingFixture() {
        list.AddColumn("Name");
        list.AddColumn("Größe (bytes)");
    }

    void Fill(const std::vector<std::pair<std::string, std::string>>& rows) {
        for (const auto& [name, size] : rows) list.SetText(list.AddRow(name), 1, size);
    }

    Texts Column(int column = 0) const {
        Texts texts;
        for (int row = 0; row < list.Count(); ++row) texts.push_back(list.Text(row, column));
        return texts;
    }
};

}  // namespace

TEST_CASE_FIXTURE(SortingFixture, "a list that is not sorted keeps the order of adding") {
    Fill({{"b", ""}, {"a", ""}});
    list.SetSortOrder(ListView::Descending);
    list.SetSortKey(1);
    CHECK(Column() == Texts{"b", "a"});
    CHECK_FALSE(list.Sorted());
}

TEST_CASE_FIXTURE(SortingFixture, "sizes sort as text, not as numbers") {
    Fill({{"a", "9"}, {"b", "10"}, {"c", "100"}, {"d", ""}});
    list.SetSortKey(1);
    list.SetSorted(true);
    CHECK(Column(1) == Texts{"", "10", "100", "9"});
    list.SetSortOrder(ListView::Descending);
    CHECK(Column(1) == Texts{"9", "100", "10", ""});
    CHECK(Column() == Texts{"a", "c", "b", "d"});
}

TEST_CASE_FIXTURE(SortingFixture, "letters' case plays no part, and equal rows keep their order") {
    Fill({{"b", "1"}, {"A", "2"}, {"B", "3"}, {"a", "4"}});
    list.SetSorted(true);
    CHECK(Column(1) == Texts{"2", "4", "1", "3"});
    list.SetSortOrder(ListView::Descending);
    CHECK(Column(1) == Texts{"1", "3", "2", "4"});
}

TEST_CASE_FIXTURE(SortingFixture, "ticks and keys go with their rows") {
    list.AddRow("b", "1A");
    list.AddRow("a", "2A");
    list.SetTicked(0, true);
    list.SetSorted(true);
    CHECK(Column() == Texts{"a", "b"});
    CHECK_FALSE(list.Ticked(0));
    CHECK(list.Ticked(1));
    CHECK(list.Key(1) == "1A");
}

TEST_CASE_FIXTURE(SortingFixture, "a sorted list takes a new row where its text puts it") {
    Fill({{"d", ""}, {"b", ""}});
    list.SetSorted(true);
    CHECK(list.AddRow("c") == 1);
    CHECK(list.AddRow("a") == 0);
    CHECK(list.AddRow("e") == 4);
    CHECK(Column() == Texts{"a", "b", "c", "d", "e"});
    list.SetSortOrder(ListView::Descending);
    CHECK(list.AddRow("bb") == 3);
    CHECK(Column() == Texts{"e", "d", "c", "bb", "b", "a"});
}

TEST_CASE_FIXTURE(SortingFixture, "a new row goes behind its equals in either order") {
    Fill({{"a", "1"}, {"b", "2"}});
    list.SetSorted(true);
    CHECK(list.AddRow("A") == 1);
    list.SetSortOrder(ListView::Descending);
    CHECK(list.AddRow("B") == 1);
}

TEST_CASE_FIXTURE(SortingFixture,
                  "sorted by a sub-item, a new row has none yet and stands at its end") {
    Fill({{"a", "5"}, {"b", "7"}});
    list.SetSortKey(1);
    list.SetSorted(true);
    CHECK(list.AddRow("c") == 0);
    list.SetSortOrder(ListView::Descending);
    CHECK(list.AddRow("d") == 3);
}

TEST_CASE_FIXTURE(SortingFixture, "a text changed later moves its row when sorting is said again") {
    Fill({{"a", ""}, {"b", ""}});
    list.SetSorted(true);
    list.SetText(0, 0, "c");
    CHECK(Column() == Texts{"c", "b"});
    CHECK(list.AddRow("aa") == 1);
    list.SetSorted(true);
    CHECK(Column() == Texts{"aa", "b", "c"});
}

TEST_CASE_FIXTURE(SortingFixture,
                  "turning sorting off leaves the order, and new rows go to the end") {
    Fill({{"b", ""}, {"a", ""}});
    list.SetSorted(true);
    list.SetSorted(false);
    CHECK(list.AddRow("0") == 2);
    CHECK(Column() == Texts{"a", "b", "0"});
    list.SetSorted(true);
    CHECK(Column() == Texts{"0", "a", "b"});
}

TEST_CASE_FIXTURE(SortingFixture, "an order that is neither of the two is refused") {
    CHECK(FailureOf([&] { list.SetSortOrder(2); }) == runtime::InvalidPropertyValue);
    CHECK(list.SortOrder() == ListView::Ascending);
}

TEST_CASE_FIXTURE(SortingFixture,
                  "the first click on a header of a fresh list can sort descending") {
    bool descending = false;
    list.onColumnClick = [&](int column) {
        descending = !descending;
        list.SetSortKey(column);
        list.SetSortOrder(descending ? ListView::Descending : ListView::Ascending);
        list.SetSorted(true);
    };
    Fill({{"a", "1"}, {"c", "3"}, {"b", "2"}});
    list.ClickColumn(0);
    CHECK(Column() == Texts{"c", "b", "a"});
    list.ClickColumn(1);
    CHECK(Column(1) == Texts{"1", "2", "3"});
}

TEST_CASE_FIXTURE(SortingFixture,
                  "20,000 rows are the same whether they are sorted one by one or at once") {
    ListView& other = form.Add<ListView>("lvwOther");
    other.SetSorted(true);
    unsigned number = 1;
    for (int row = 0; row < 20000; ++row) {
        number = number * 1664525 + 1013904223;
        list.AddRow(std::to_string(number >> 20), std::to_string(row));
        other.AddRow(std::to_string(number >> 20), std::to_string(row));
    }
    list.SetSorted(true);
    bool same = true;
    for (int row = 0; row < 20000; ++row) same = same && list.Key(row) == other.Key(row);
    CHECK(same);
}
