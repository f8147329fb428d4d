#include "toolkit/combobox.h"

#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/journal.h"

using toolkit::Aspect;
using toolkit::ComboBox;
using toolkit::ComboBoxStyle;

namespace {

struct ComboBoxFixture {
    NotingHost host;
    TestForm form{host};
    ComboBox& box = Make("cboMTU", {});
    Journal events;

    ComboBox& Make(const char* name, ComboBoxStyle style) {
        auto& made = form.Add<ComboBox>(name, style);
        for (const char* item : {"552", "576", "1500"}) made.AddItem(item);
        made.onChange = [this, &made] { events.push_back("change " + made.Text()); };
        made.onClick = [this, &made] { events.push_back("click " + made.Text()); };
        return made;
    }
};

}  // namespace

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a combo box starts with its items, no text and nothing selected") {
    CHECK(box.Items() == std::vector<std::string>{"552", "576", "1500"});
    CHECK(box.Text() == "");
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(events.empty());
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "selecting an item gives the box its text and raises Click alone") {
    box.SetListIndex(2);
    CHECK(box.Text() == "1500");
    CHECK(box.ListIndex() == 2);
    CHECK(events == Journal{"click 1500"});
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "the selected item selected again raises nothing and shows nothing") {
    box.SetListIndex(2);
    NotingView view;
    box.SetView(&view);
    box.SetListIndex(2);
    CHECK(events.size() == 1);
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a text beside the list raises Change alone and ends the selection") {
    box.SetListIndex(2);
    events.clear();
    box.SetText("1492");
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(events == Journal{"change 1492"});
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a text that equals an item stands beside the list all the same") {
    box.SetText("576");
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    box.SetListIndex(1);
    CHECK(events == Journal{"change 576", "click 576"});
}

TEST_CASE_FIXTURE(ComboBoxFixture, "the text that the box has already raises nothing") {
    box.SetText("");
    box.SetListIndex(1);
    events.clear();
    box.SetText("576");
    CHECK(events.empty());
    CHECK(box.ListIndex() == 1);
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "taking the selection away takes its text along and raises Click") {
    box.SetListIndex(1);
    box.SetListIndex(ComboBox::NoSelection);
    CHECK(box.Text() == "");
    CHECK(events == Journal{"click 576", "click "});
}

TEST_CASE_FIXTURE(ComboBoxFixture, "where nothing is selected there is nothing to take away") {
    box.SetText("frei");
    box.SetListIndex(ComboBox::NoSelection);
    CHECK(box.Text() == "frei");
    CHECK(events == Journal{"change frei"});
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "an index that is no item is an invalid property value; all stays as it was") {
    box.SetListIndex(1);
    for (int index : {3, -2, 2147483647, -2147483647}) {
        CAPTURE(index);
        CHECK(FailureOf([&] { box.SetListIndex(index); }) == runtime::InvalidPropertyValue);
        CHECK(box.ListIndex() == 1);
    }
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(ComboBoxFixture, "a new item stands behind the others and raises nothing") {
    box.SetListIndex(2);
    box.AddItem("1500");
    CHECK(box.Items().size() == 4);
    CHECK(box.ListIndex() == 2);
    CHECK(events == Journal{"click 1500"});
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "clearing takes list, selection and text, and tells of the text alone") {
    SUBCASE("with an item selected") {
        box.SetListIndex(2);
    }
    SUBCASE("with a text beside the list") {
        box.SetText("1492");
    }
    events.clear();
    box.Clear();
    CHECK(box.Items().empty());
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(box.Text() == "");
    CHECK(events == Journal{"change "});
    box.Clear();
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a box that only lists selects the item of the text that it is given") {
    auto& drives = Make("drvSelect", {.listOnly = true});
    drives.SetText("1500");
    CHECK(drives.ListIndex() == 2);
    CHECK(events == Journal{"click 1500"});
    drives.SetText("1500");
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a box that only lists refuses a text that is no item, and clears in silence") {
    auto& drives = Make("drvSelect", {.listOnly = true});
    drives.SetListIndex(0);
    events.clear();
    CHECK(FailureOf([&] { drives.SetText("1492"); }) == runtime::InvalidPropertyValue);
    CHECK(drives.Text() == "552");
    drives.Clear();
    CHECK(drives.Text() == "");
    CHECK(events.empty());
}

TEST_CASE_FIXTURE(ComboBoxFixture, "a text is cut to the box's length, an item is not") {
    auto& any = Make("cbo", {.maxLength = 3});
    any.SetText("ÄÖÜß");
    CHECK(any.Text() == "ÄÖÜ");
    any.SetListIndex(2);
    CHECK(any.Text() == "1500");
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "the view is told of the items and of the text before the event runs") {
    NotingView view;
    box.SetView(&view);
    box.AddItem("3000");
    CHECK(view.shown == std::vector{Aspect::Items});
    std::size_t shownBefore = 0;
    box.onClick = [&] { shownBefore = view.shown.size(); };
    box.SetListIndex(3);
    CHECK(shownBefore == 2);
    box.Clear();
    CHECK(view.shown == std::vector{Aspect::Items, Aspect::Value, Aspect::Items, Aspect::Value});
}

TEST_CASE_FIXTURE(ComboBoxFixture,
                  "a failure in a handler passes on, and the box keeps what it was given") {
    box.onChange = [] { throw runtime::Failure(runtime::Overflow); };
    box.onClick = [] { throw runtime::Failure(runtime::TypeMismatch); };
    CHECK(FailureOf([&] { box.SetText("x"); }) == runtime::Overflow);
    CHECK(box.Text() == "x");
    CHECK(FailureOf([&] { box.SetListIndex(0); }) == runtime::TypeMismatch);
    CHECK(box.Text() == "552");
}
