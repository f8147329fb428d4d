#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using toolkit::TabStrip;

namespace {

struct TabStripFixture {
    NotingHost host;
    TestForm form{host};
    TabStrip& tabs = form.Add<TabStrip>(
        "SSTab1", std::vector<std::string>{"a", "b", "c", "d", "e", "f", "g", "h"});
    int clicks = 0;

    TabStripFixture() {
        tabs.onClick = [this] { ++clicks; };
    }
};

}  // namespace

TEST_CASE_FIXTURE(TabStripFixture, "a tab strip opens on its first page") {
    CHECK(tabs.Tab() == 0);
}

TEST_CASE_FIXTURE(TabStripFixture, "another page raises Click, the same page does not") {
    tabs.SetTab(7);
    CHECK(tabs.Tab() == 7);
    CHECK(clicks == 1);
    tabs.SetTab(7);
    CHECK(clicks == 1);
}

TEST_CASE_FIXTURE(TabStripFixture, "a click of the user's raises Click whatever page is up") {
    tabs.Click();
    CHECK(clicks == 1);
    CHECK(tabs.Tab() == 0);
}

TEST_CASE_FIXTURE(TabStripFixture,
                  "a number that is no page is an invalid property value; the page stays") {
    tabs.SetTab(3);
    for (int tab : {8, 9, -1, -2147483647}) {
        CAPTURE(tab);
        CHECK(FailureOf([&] { tabs.SetTab(tab); }) == 380);
        CHECK(tabs.Tab() == 3);
    }
    CHECK(clicks == 1);
}

TEST_CASE_FIXTURE(TabStripFixture, "a failure in the handler passes to whoever turned the page") {
    tabs.onClick = [] { throw runtime::Failure(runtime::Overflow); };
    CHECK_THROWS_AS(tabs.SetTab(1), runtime::Failure);
    CHECK(tabs.Tab() == 1);
}
