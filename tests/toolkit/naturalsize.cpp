#include "toolkit/naturalsize.h"

#include <doctest/doctest.h>

#include "toolkit/combobox.h"
#include "toolkit/layoutfixture.h"

using namespace toolkit;

TEST_CASE_FIXTURE(LayoutFixture, "a label is as large as its text") {
    CHECK(NaturalSize(form.Add<Label>("a", "Username"), text) == Size{48, 13});
}

TEST_CASE_FIXTURE(LayoutFixture, "a label of several lines is as wide as its widest line") {
    CHECK(NaturalSize(form.Add<Label>("a", "ab\r\nabcdef\r\nabc"), text) == Size{36, 39});
    CHECK(NaturalSize(form.Add<Label>("b", "ab\r\n"), text) == Size{12, 26});
    CHECK(NaturalSize(form.Add<Label>("c", "\r\n\r\n"), text) == Size{0, 39});
}

TEST_CASE_FIXTURE(LayoutFixture, "an empty label keeps the height of a line") {
    CHECK(NaturalSize(form.Add<Label>("a", ""), text) == Size{0, 13});
}

TEST_CASE_FIXTURE(LayoutFixture, "a path wants one line whatever its text, and no width") {
    CHECK(NaturalSize(form.Add<Label>("a", "C:\\ab\r\ncd", LabelStyle::Path), text) == Size{0, 13});
}

TEST_CASE_FIXTURE(LayoutFixture, "a heading is measured in bold") {
    CHECK(NaturalSize(form.Add<Label>("a", "CleanUp", LabelStyle::Heading), text) == Size{49, 15});
}

TEST_CASE_FIXTURE(LayoutFixture, "the mark of an access key takes no room") {
    CHECK(NaturalSize(form.Add<Label>("a", "&Name"), text) == Size{24, 13});
}

TEST_CASE_FIXTURE(LayoutFixture, "a check box and an option button add their mark to the text") {
    const Size expected{13 + 6 + 24, 15};
    CHECK(NaturalSize(form.Add<CheckBox>("a", "abcd"), text) == expected);
    CHECK(NaturalSize(form.Add<OptionButton>("b", "abcd", 1), text) == expected);
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a text box has room for its columns, and its text plays no part") {
    auto& box = form.Add<TextBox>("a", TextBoxStyle{.columns = 5});
    CHECK(NaturalSize(box, text) == Size{5 * 6 + 8, 21});
    box.SetText("much longer than five");
    CHECK(NaturalSize(box, text) == Size{5 * 6 + 8, 21});
}

TEST_CASE_FIXTURE(LayoutFixture, "a text box of several lines is three lines high") {
    CHECK(NaturalSize(form.Add<TextBox>("a", TextBoxStyle{.multiLine = true, .columns = 10}),
                      text) == Size{68, 3 * 13 + 8});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a combo box adds its button to the columns, and its items play no part") {
    auto& box = form.Add<ComboBox>("a", ComboBoxStyle{.columns = 5});
    CHECK(NaturalSize(box, text) == Size{5 * 6 + 8 + 17, 21});
    box.AddItem("much longer than five");
    CHECK(NaturalSize(box, text) == Size{5 * 6 + 8 + 17, 21});
}

TEST_CASE_FIXTURE(LayoutFixture, "a slider has a size of its own") {
    CHECK(NaturalSize(form.Add<Slider>("a", SliderRange{}, 0), text) == Size{120, 28});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a control that draws itself is asked, with the size of its text") {
    CHECK(NaturalSize(form.Add<DrawnBox>("a", "&Hilfe"), text) == Size{40, 23});
}

TEST_CASE_FIXTURE(LayoutFixture,
                  "a control that draws itself without a text knows the height of a line") {
    CHECK(NaturalSize(form.Add<DrawnBox>("a", ""), text) == Size{10, 23});
}

TEST_CASE_FIXTURE(LayoutFixture, "sizes grow with the screen's dots per inch") {
    text.percent = 200;
    CHECK(NaturalSize(form.Add<Slider>("a", SliderRange{}, 0), text) == Size{240, 56});
    CHECK(NaturalSize(form.Add<CheckBox>("b", "abcd"), text) == Size{26 + 12 + 48, 30});
    CHECK(NaturalSize(form.Add<TextBox>("c", TextBoxStyle{.columns = 5}), text) == Size{76, 42});
}
