#include "toolkit/listbox.h"

#include <doctest/doctest.h>

#include "toolkit/drivelistbox.h"
#include "toolkit/layoutfixture.h"
#include "toolkit/listview.h"
#include "toolkit/progressbar.h"

using namespace toolkit;

TEST_CASE_FIXTURE(LayoutFixture,
                  "lines go behind the others, equal ones too, until all are cleared") {
    auto& list = form.Add<ListBox>("lstUsers");
    NotingView view;
    list.SetView(&view);
    list.AddItem("PC\\Paula");
    list.AddItem("PC\\Paula");
    CHECK(list.Items() == std::vector<std::string>{"PC\\Paula", "PC\\Paula"});
    list.Clear();
    CHECK(list.Items().empty());
    CHECK(view.shown == std::vector<Aspect>(3, Aspect::Items));
    list.Clear();
    CHECK(view.shown.size() == 3);
}

TEST_CASE_FIXTURE(LayoutFixture, "a list has room for its columns and lines, and a bar to scroll") {
    CHECK(SizeOf(Leaf(form.Add<ListBox>("a", 10, 3))) == Size{60 + 4 + 17, 3 * 13 + 4});
    CHECK(SizeOf(Leaf(form.Add<ListView>("b", ListViewStyle{.columns = 10, .lines = 3}))) ==
          Size{60 + 4 + 17, 13 + 6 + 3 * 15 + 4});
}

TEST_CASE_FIXTURE(LayoutFixture, "a list's lines and rows play no part in its size") {
    auto& list = form.Add<ListBox>("a", 10, 3);
    auto& view = form.Add<ListView>("b", ListViewStyle{.columns = 10, .lines = 3});
    const Size listSize = SizeOf(Leaf(list));
    const Size viewSize = SizeOf(Leaf(view));
    for (int line = 0; line < 10; ++line) {
        list.AddItem(std::string(100, 'x'));
        view.AddRow(std::string(100, 'x'));
    }
    CHECK(SizeOf(Leaf(list)) == listSize);
    CHECK(SizeOf(Leaf(view)) == viewSize);
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a drive list is as high as a combo box, and a progress bar lower") {
    CHECK(SizeOf(Leaf(form.Add<DriveListBox>("a"))) == Size{20 * 6 + 8 + 17, 21});
    CHECK(SizeOf(Leaf(form.Add<ProgressBar>("b"))) == Size{120, 16});
}

TEST_CASE_FIXTURE(LayoutFixture, "lists grow with the height of their row, other controls do not") {
    auto& list = form.Add<ListBox>("a", 10, 3);
    auto& view = form.Add<ListView>("b", ListViewStyle{.columns = 10, .lines = 3});
    auto& drives = form.Add<DriveListBox>("c");
    auto& bar = form.Add<ProgressBar>("d");
    const auto areas =
        Areas(Row({Leaf(list), Leaf(view), Leaf(drives), Leaf(bar)}), {0, 0, 900, 200});
    CHECK(areas[0].height == 200);
    CHECK(areas[1].height == 200);
    CHECK(areas[2].height == 21);
    CHECK(areas[3].height == 16);
}
