#include <doctest/doctest.h>

#include "toolkit/layoutfixture.h"

using namespace toolkit;
using Areas = std::vector<Rect>;

TEST_CASE_FIXTURE(LayoutFixture, "a grid fills from left to right, then down") {
    const Box grid = Gap(Grid(2, {Text(2), Text(4), Text(6), Text(1)}), 2);
    CHECK(SizeOf(grid) == Size{36 + 2 + 24, 13 + 2 + 13});
    CHECK(this->Areas(grid, {10, 20, 62, 28}) ==
          ::Areas{{10, 20, 36, 13}, {48, 20, 24, 13}, {10, 35, 36, 13}, {48, 35, 24, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "the last row of a grid may be short") {
    const Box grid = Gap(Grid(2, {Text(2), Text(4), Text(6)}), 2);
    CHECK(SizeOf(grid) == Size{62, 28});
    CHECK(this->Areas(grid, {0, 0, 62, 28}).size() == 3);
}

TEST_CASE_FIXTURE(LayoutFixture, "room left over goes to the columns in which a cell stretches") {
    const Box grid = Gap(Grid(2, {Text(2), Text(4), Text(2), Stretch(Text(1))}), 0);
    CHECK(this->Areas(grid, {0, 0, 100, 26}) ==
          ::Areas{{0, 0, 12, 13}, {12, 0, 88, 13}, {0, 13, 12, 13}, {12, 13, 88, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "the rows of a grid keep their height where more room is") {
    const Box grid = Gap(Grid(1, {Stretch(Text(1)), Stretch(Text(1))}), 0);
    CHECK(this->Areas(grid, {0, 0, 6, 100}) == ::Areas{{0, 0, 6, 13}, {0, 13, 6, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a cell keeps its size when told so, and stands in the row's middle") {
    const Box grid = Gap(Grid(2, {KeepSize(Text(2)), Group(40, 43), Text(5), Text(1)}), 0);
    CHECK(this->Areas(grid, {0, 0, 70, 56}) ==
          ::Areas{{0, 15, 12, 13}, {30, 0, 40, 43}, {0, 43, 30, 13}, {30, 43, 40, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "in a grid that is too small the stretching column gives way first") {
    const Box grid = Gap(Grid(2, {Text(10), Stretch(Text(10))}), 0);
    CHECK(this->Areas(grid, {0, 0, 80, 13}) == ::Areas{{0, 0, 60, 13}, {60, 0, 20, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a grid respects the least sizes of its cells") {
    const Box grid = Gap(Grid(2, {AtLeast(Text(1), 30, 20), AtLeast(Stretch(Text(10)), 25, 0)}), 0);
    CHECK(SizeOf(grid) == Size{90, 20});
    CHECK(this->Areas(grid, {0, 0, 40, 20}) == ::Areas{{0, 0, 30, 20}, {30, 3, 25, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a grid without cells takes no room") {
    CHECK(SizeOf(Grid(3, {})) == Size{8, 0});
    CHECK(this->Areas(Grid(3, {}), {0, 0, 10, 10}).empty());
}
