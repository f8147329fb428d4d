#include <doctest/doctest.h>

#include "toolkit/layoutfixture.h"

using namespace toolkit;

namespace {

struct PagesFixture : LayoutFixture {
    TabStrip& tabs = form.Add<TabStrip>("SSTab1", std::vector<std::string>{" System", " Tweaks"});
    Frame& frame = form.Add<Frame>("fraMemory", "System Boosts");
};

}  // namespace

TEST_CASE_FIXTURE(PagesFixture,
                  "a frame keeps a line for its caption and an edge around its content") {
    const Box box = InFrame(frame, Space(200, 50));
    CHECK(SizeOf(box) == Size{216, 75});
    CHECK(Areas(InFrame(frame, Text(30)), {10, 20, 216, 75}) ==
          std::vector<Rect>{{10, 20, 216, 75}, {18, 37, 200, 50}});
}

TEST_CASE_FIXTURE(PagesFixture, "a frame is wide enough for its own caption") {
    CHECK(SizeOf(InFrame(frame, Space(1, 50))).width == 13 * 6 + 18);
}

TEST_CASE_FIXTURE(PagesFixture, "the margin of a frame stands outside of it") {
    const Box box = Margin(InFrame(frame, Space(200, 50)), 5);
    CHECK(SizeOf(box) == Size{226, 85});
    CHECK(Areas(box, {0, 0, 226, 85}) == std::vector<Rect>{{5, 5, 216, 75}});
}

TEST_CASE_FIXTURE(PagesFixture, "a frame comes before its content") {
    const auto placements = Arrange(InFrame(frame, Text(1)), {0, 0, 300, 100}, text);
    REQUIRE(placements.size() == 2);
    CHECK(placements[0].control == &frame);
}

TEST_CASE_FIXTURE(PagesFixture, "pages stand below the tabs, each over the whole page") {
    const Box box =
        Pages(tabs, {Column({Stretch(Group(20, 30))}), Column({Stretch(Group(20, 30))})});
    CHECK(Areas(box, {0, 0, 660, 500}) ==
          std::vector<Rect>{{0, 0, 660, 500}, {4, 27, 652, 469}, {4, 27, 652, 469}});
}

TEST_CASE_FIXTURE(PagesFixture, "the pages together want the size of the largest one") {
    const Box box = Pages(tabs, {Space(300, 100), Space(200, 250)});
    CHECK(SizeOf(box) == Size{308, 23 + 8 + 250});
}

TEST_CASE_FIXTURE(PagesFixture, "the tab strip is wide enough for all of its tabs in one line") {
    CHECK(SizeOf(Pages(tabs, {Space(1, 1), Space(1, 1)})).width == 2 * (7 * 6 + 16));
}

TEST_CASE_FIXTURE(PagesFixture,
                  "each control knows its page; what stands outside of the pages has none") {
    const Box box =
        Column({Text(1), Pages(tabs, {InFrame(frame, Text(2)), Row({Text(3)})}), Text(4)});
    std::vector<int> pages;
    for (const Placement& placement : Arrange(box, {0, 0, 660, 500}, text)) {
        pages.push_back(placement.page);
    }
    CHECK(pages == std::vector{-1, -1, 0, 0, 1, -1});
}

TEST_CASE_FIXTURE(PagesFixture, "the edges of frames and pages grow with the dots per inch") {
    text.percent = 200;
    CHECK(SizeOf(InFrame(frame, Space(200, 50))) == Size{432, 150});
    CHECK(SizeOf(Pages(tabs, {Space(300, 100)})) == Size{616, 46 + 16 + 200});
}
