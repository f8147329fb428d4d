#include <doctest/doctest.h>

#include "toolkit/layoutfixture.h"

using namespace toolkit;
using Areas = std::vector<Rect>;

TEST_CASE_FIXTURE(LayoutFixture, "a row stands side by side with gaps, as high as its highest") {
    const Box row = Gap(Row({Text(2), Group(50, 40), Text(3)}), 5);
    CHECK(SizeOf(row) == Size{12 + 5 + 50 + 5 + 18, 40});
    CHECK(this->Areas(row, {100, 200, 90, 40}) ==
          ::Areas{{100, 213, 12, 13}, {117, 200, 50, 40}, {172, 213, 18, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a column stands one below the other, as wide as its widest") {
    const Box column = Gap(Column({Text(2), Text(10)}), 5);
    CHECK(SizeOf(column) == Size{60, 31});
    CHECK(this->Areas(column, {100, 200, 60, 31}) ==
          ::Areas{{100, 200, 60, 13}, {100, 218, 60, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a gap is 4 pixels when nothing else is said") {
    CHECK(SizeOf(Row({Text(1), Text(1)})) == Size{16, 13});
    CHECK(SizeOf(Column({Text(1), Text(1)})) == Size{6, 30});
}

TEST_CASE_FIXTURE(LayoutFixture, "a margin stands around a box") {
    const Box box = Margin(Row({Text(2)}), 8);
    CHECK(SizeOf(box) == Size{28, 29});
    CHECK(this->Areas(box, {0, 0, 28, 29}) == ::Areas{{8, 8, 12, 13}});
    CHECK(this->Areas(Margin(Text(2), 8), {0, 0, 28, 29}) == ::Areas{{8, 8, 12, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "room left over in a row goes to what stretches") {
    const Box row = Gap(Row({Text(1), Stretch(Text(1)), Stretch(Text(1), 2)}), 0);
    CHECK(this->Areas(row, {0, 0, 48, 13}) ==
          ::Areas{{0, 0, 6, 13}, {6, 0, 16, 13}, {22, 0, 26, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a filler pushes what follows to the end") {
    const Box row = Gap(Row({Filler(), Text(2)}), 0);
    CHECK(this->Areas(row, {0, 0, 100, 13}) == ::Areas{{88, 0, 12, 13}});
    const Box column = Gap(Column({Filler(), Text(2)}), 0);
    CHECK(this->Areas(column, {0, 0, 12, 100}) == ::Areas{{0, 87, 12, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a space takes the room it is given and shows nothing") {
    const Box row = Gap(Row({Space(20, 5), Text(2)}), 0);
    CHECK(SizeOf(row) == Size{32, 13});
    CHECK(this->Areas(row, {0, 0, 32, 13}) == ::Areas{{20, 0, 12, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "what stands in a column is as wide as the column") {
    const Box column = Column({Leaf(form.Add<DrawnBox>("cmd", "ab"))});
    CHECK(this->Areas(column, {0, 0, 100, 23}) == ::Areas{{0, 0, 100, 23}});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "what is limited wants no more than its limit, and less if it can") {
    CHECK(SizeOf(AtMost(Text(4), 20, 10)) == Size{20, 10});
    CHECK(SizeOf(AtMost(Text(4), 30, 0)) == Size{24, 13});
    CHECK(SizeOf(AtLeast(AtMost(Text(4), 20, 10), 21, 11)) == Size{21, 11});
    const Box row =
        Gap(Row({Stretch(Text(1)), AtMost(Leaf(form.Add<DrawnBox>("cmd", "ab")), 9, 7)}), 0);
    CHECK(this->Areas(row, {0, 0, 50, 13}) == ::Areas{{0, 0, 41, 13}, {41, 3, 9, 7}});
    text.percent = 200;
    CHECK(SizeOf(AtMost(Text(4), 20, 10)) == Size{40, 20});
}

TEST_CASE_FIXTURE(LayoutFixture, "what keeps its size in a column stands on the left") {
    const Box column = Column({KeepSize(Leaf(form.Add<DrawnBox>("cmd", "ab")))});
    CHECK(this->Areas(column, {0, 0, 100, 23}) == ::Areas{{0, 0, 22, 23}});
    CHECK(this->Areas(column, {0, 0, 10, 23}) == ::Areas{{0, 0, 10, 23}});
}

TEST_CASE_FIXTURE(LayoutFixture, "controls of one line stand in the middle of a row") {
    const Box row = Gap(
        Row({Text(1), Leaf(form.Add<CheckBox>("chk", "a")),
             Leaf(form.Add<TextBox>("txt", TextBoxStyle{.columns = 1})),
             Leaf(form.Add<Slider>("sld", SliderRange{}, 0)),
             Leaf(form.Add<OptionButton>("opt", "a", 1)), Leaf(form.Add<DrawnBox>("cmd", "a"))}),
        0);
    CHECK(this->Areas(row, {0, 0, 220, 43}) == ::Areas{{0, 15, 6, 13},
                                                       {6, 14, 25, 15},
                                                       {31, 11, 14, 21},
                                                       {45, 7, 120, 28},
                                                       {165, 14, 25, 15},
                                                       {190, 10, 16, 23}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a text box of several lines is as high as its row") {
    const Box row =
        Row({Leaf(form.Add<TextBox>("txt", TextBoxStyle{.multiLine = true, .columns = 1}))});
    CHECK(this->Areas(row, {0, 0, 14, 100}) == ::Areas{{0, 0, 14, 100}});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a group is as high as its row, and stands on top if it keeps its size") {
    CHECK(this->Areas(Row({Group(50, 40)}), {0, 0, 50, 100}) == ::Areas{{0, 0, 50, 100}});
    CHECK(this->Areas(Row({KeepSize(Group(50, 40))}), {0, 0, 50, 100}) == ::Areas{{0, 0, 50, 40}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a box is at least as large as it is told to be") {
    CHECK(SizeOf(AtLeast(Text(1), 50, 30)) == Size{50, 30});
    CHECK(SizeOf(AtLeast(Text(10), 50, 5)) == Size{60, 13});
    const Box row = Gap(Row({AtLeast(Stretch(Text(10)), 40, 0), Text(10)}), 0);
    CHECK(this->Areas(row, {0, 0, 80, 13}) == ::Areas{{0, 0, 40, 13}, {40, 0, 40, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "in a row that is too small what stretches gives way first") {
    const Box row = Gap(Row({Text(10), Stretch(Text(10))}), 4);
    CHECK(this->Areas(row, {0, 0, 74, 13}) == ::Areas{{0, 0, 60, 13}, {64, 0, 10, 13}});
    CHECK(this->Areas(row, {0, 0, 34, 13}) == ::Areas{{0, 0, 30, 13}, {34, 0, 0, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "gaps, margins, spaces and least sizes grow with the dots per inch") {
    text.percent = 150;
    CHECK(SizeOf(Gap(Row({Space(10, 10), Space(10, 10)}), 4)) == Size{15 + 6 + 15, 15});
    CHECK(SizeOf(Margin(AtLeast(Space(0, 0), 10, 10), 8)) == Size{24, 24});
}

TEST_CASE_FIXTURE(LayoutFixture, "however deep a box lies, its text is measured once a layout") {
    Box nested = Leaf(form.Add<Label>("a", "deep"));
    for (int depth = 0; depth < 12; ++depth) {
        std::vector<Box> content;
        content.push_back(std::move(nested));
        nested = depth % 2 ? Row(std::move(content)) : Column(std::move(content));
    }
    Arrange(nested, {0, 0, 100, 100}, text);
    CHECK(text.asked["deep"] == 1);
}
