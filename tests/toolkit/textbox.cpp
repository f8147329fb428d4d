#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using toolkit::TextBox;

namespace {

struct TextBoxFixture {
    NotingHost host;
    TestForm form{host};
    TextBox& box = form.Add<TextBox>("txtOSBuild", toolkit::TextBoxStyle{.maxLength = 4});
    Journal changes;

    TextBoxFixture() {
        box.onChange = [this] { changes.push_back(box.Text()); };
    }
};

}  // namespace

TEST_CASE_FIXTURE(TextBoxFixture, "a text box raises Change with each new text") {
    box.SetText("26");
    box.SetText("2600");
    CHECK(changes == Journal{"26", "2600"});
}

TEST_CASE_FIXTURE(TextBoxFixture,
                  "a text box that keeps its text raises nothing and shows nothing new") {
    NotingView view;
    box.SetView(&view);
    box.SetText("");
    CHECK(changes.empty());
    box.SetText("2600");
    box.SetText("2600");
    CHECK(changes.size() == 1);
    CHECK(view.shown.size() == 1);
}

TEST_CASE_FIXTURE(TextBoxFixture, "a text is cut to the box's length, counted in characters") {
    box.SetText("26000");
    CHECK(box.Text() == "2600");
    box.SetText("ÄÖÜßé");
    CHECK(box.Text() == "ÄÖÜß");
}

TEST_CASE_FIXTURE(TextBoxFixture, "a text that differs only in what is cut raises nothing") {
    box.SetText("2600");
    box.SetText("26001");
    CHECK(changes.size() == 1);
}

TEST_CASE_FIXTURE(TextBoxFixture, "a text box without a limit takes any length") {
    auto& any = form.Add<TextBox>("txtAny");
    const std::string text(70000, 'x');
    any.SetText(text);
    CHECK(any.Text() == text);
}

TEST_CASE_FIXTURE(TextBoxFixture,
                  "a failure in the handler passes to whoever set the text, which stays") {
    box.onChange = [] { throw runtime::Failure(runtime::TypeMismatch); };
    CHECK_THROWS_AS(box.SetText("abc"), runtime::Failure);
    CHECK(box.Text() == "abc");
}
