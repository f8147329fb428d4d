#include "toolkit/control.h"

#include <doctest/doctest.h>

#include "toolkit/controls.h"
#include "toolkit/journal.h"

using namespace toolkit;

namespace {

struct ControlFixture {
    NotingHost host;
    TestForm form{host};
    Label& label = form.Add<Label>("lblSP", "n/A");
    NotingView view;

    ControlFixture() { label.SetView(&view); }
};

}  // namespace

TEST_CASE_FIXTURE(ControlFixture, "a new control is enabled, visible and knows its form") {
    CHECK(label.Enabled());
    CHECK(label.Visible());
    CHECK(&label.Owner() == &form);
    CHECK(label.Name() == "lblSP");
    CHECK(label.Caption() == "n/A");
}

TEST_CASE_FIXTURE(ControlFixture, "a change of caption, enabling, visibility or tip is shown") {
    label.SetCaption("Service Pack 3");
    label.SetEnabled(false);
    label.SetVisible(false);
    label.SetToolTip("Was neu ist");
    CHECK(view.shown ==
          std::vector{Aspect::Caption, Aspect::Enabled, Aspect::Visible, Aspect::ToolTip});
    CHECK(label.ToolTip() == "Was neu ist");
    CHECK(label.Caption() == "Service Pack 3");
    CHECK_FALSE(label.Enabled());
    CHECK_FALSE(label.Visible());
}

TEST_CASE_FIXTURE(ControlFixture, "setting what is there already shows nothing new") {
    label.SetCaption("n/A");
    label.SetEnabled(true);
    label.SetVisible(true);
    label.SetToolTip("");
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(ControlFixture, "a control without a view keeps what it is given") {
    label.SetView(nullptr);
    label.SetCaption("neu");
    CHECK(label.Caption() == "neu");
    CHECK(view.shown.empty());
}

TEST_CASE("texts and frames are passed over by the tabulator, links and all others are reached") {
    NotingHost host;
    TestForm form(host);
    CHECK_FALSE(form.Add<Label>("label", "").IsTabStop());
    CHECK(form.Add<Label>("link", "", LabelStyle::Link).IsTabStop());
    CHECK_FALSE(form.Add<Frame>("frame", "").IsTabStop());
    CHECK(form.Add<CheckBox>("check", "").IsTabStop());
    CHECK(form.Add<OptionButton>("option", "", 1).IsTabStop());
    CHECK(form.Add<TextBox>("text").IsTabStop());
    CHECK(form.Add<Slider>("slider", SliderRange{}, 0).IsTabStop());
    CHECK(form.Add<TabStrip>("tabs", std::vector<std::string>{"a"}).IsTabStop());
}
