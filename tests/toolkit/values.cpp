// What all controls with a value have in common.
#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using namespace toolkit;

namespace {

struct ValuesFixture {
    NotingHost host;
    TestForm form{host};
    CheckBox& box = form.Add<CheckBox>("check", "");
    OptionButton& option = form.Add<OptionButton>("option", "", 1);
    TextBox& text = form.Add<TextBox>("text");
    Slider& slider = form.Add<Slider>("slider", SliderRange{}, 0);
    TabStrip& tabs = form.Add<TabStrip>("tabs", std::vector<std::string>{"a", "b"});
    NotingView view;

    ValuesFixture() {
        for (const auto& control : form.Controls()) control->SetView(&view);
    }

    void ChangeAll() {
        box.SetValue(2);
        option.SetValue(true);
        text.SetText("b");
        slider.SetValue(10);
        tabs.SetTab(1);
    }
};

}  // namespace

TEST_CASE_FIXTURE(ValuesFixture, "a new value of any control is shown once, as a value") {
    ChangeAll();
    CHECK(view.shown == std::vector<Aspect>(5, Aspect::Value));
    ChangeAll();
    CHECK(view.shown.size() == 5);
}

TEST_CASE_FIXTURE(ValuesFixture, "a value beyond a slider's end moves nothing and is not shown") {
    slider.SetValue(11);
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(ValuesFixture, "a refused value is an invalid property value and shows nothing") {
    CHECK(FailureOf([&] { box.SetValue(3); }) == 380);
    CHECK(FailureOf([&] { box.SetValue(-1); }) == 380);
    CHECK(FailureOf([&] { tabs.SetTab(2); }) == 380);
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(ValuesFixture, "the failure of a handler is the one that its setter throws") {
    for (Handler* handler :
         {&box.onClick, &option.onClick, &text.onChange, &slider.onChange, &tabs.onClick}) {
        *handler = [] { throw runtime::Failure(runtime::PermissionDenied); };
    }
    CHECK(FailureOf([&] { box.SetValue(1); }) == 70);
    CHECK(FailureOf([&] { option.SetValue(true); }) == 70);
    CHECK(FailureOf([&] { text.SetText("b"); }) == 70);
    CHECK(FailureOf([&] { slider.SetValue(1); }) == 70);
    CHECK(FailureOf([&] { tabs.SetTab(1); }) == 70);
}

TEST_CASE_FIXTURE(ValuesFixture, "a control tells its kind, and what it was made with") {
    CHECK(box.Kind() == ControlKind::CheckBox);
    CHECK(option.Kind() == ControlKind::OptionButton);
    CHECK(option.Group() == 1);
    CHECK(text.Kind() == ControlKind::TextBox);
    CHECK(text.Style().columns == 12);
    CHECK(slider.Kind() == ControlKind::Slider);
    CHECK(slider.Range().maximum == 10);
    CHECK(tabs.Kind() == ControlKind::TabStrip);
    CHECK(tabs.Captions() == std::vector<std::string>{"a", "b"});
    CHECK(form.Add<Frame>("frame", "").Kind() == ControlKind::Frame);
    const auto& label = form.Add<Label>("label", "");
    CHECK(label.Kind() == ControlKind::Label);
    CHECK(label.Style() == LabelStyle::Plain);
}
