#include <doctest/doctest.h>

#include "toolkit/form.h"
#include "toolkit/journal.h"
#include "toolkit/keys.h"

using namespace toolkit;

namespace {

constexpr Bounds Designed{100, 200, 9990, 7920};

class CountingForm : public Form {
  public:
    explicit CountingForm(FormHost& host) : Form(host, "frmMain", "Quillmore", Designed) {}

    int resizes = 0;
    bool snapsBack = false;

  protected:
    void OnResize() override {
        ++resizes;
        if (snapsBack) SetSize(9990, 7920);
    }
    bool OnKeyDown(int virtualKey) override { return virtualKey == toolkit::key::F4; }
};

class NotingWindow : public FormView {
  public:
    void Refresh(FormAspect what) override { shown.push_back(what); }

    std::vector<FormAspect> shown;
};

struct FormWindowFixture {
    NotingHost host;
    CountingForm form{host};
    NotingWindow window;

    FormWindowFixture() {
        form.Show();
        form.resizes = 0;
        form.SetView(&window);
    }
};

}  // namespace

TEST_CASE_FIXTURE(FormWindowFixture, "a change of state or size by the user raises Resize") {
    form.WindowMoved(WindowState::Minimised, Designed);
    CHECK(form.State() == WindowState::Minimised);
    CHECK(form.resizes == 1);
    form.WindowMoved(WindowState::Normal, {100, 200, 9000, 7920});
    CHECK(form.resizes == 2);
    form.WindowMoved(WindowState::Normal, {100, 200, 9000, 7000});
    CHECK(form.resizes == 3);
    CHECK(form.Place() == Bounds{100, 200, 9000, 7000});
}

TEST_CASE_FIXTURE(FormWindowFixture,
                  "a window that only moves, or stays as it was, raises no Resize") {
    form.WindowMoved(WindowState::Normal, {300, 400, 9990, 7920});
    form.WindowMoved(WindowState::Normal, {300, 400, 9990, 7920});
    CHECK(form.resizes == 0);
    CHECK(form.Place() == Bounds{300, 400, 9990, 7920});
}

TEST_CASE_FIXTURE(FormWindowFixture, "what the window itself reports is not sent back to it") {
    form.WindowMoved(WindowState::Maximised, {0, 0, 15360, 11100});
    CHECK(window.shown.empty());
}

TEST_CASE_FIXTURE(FormWindowFixture, "a form that snaps back settles at its own size") {
    form.snapsBack = true;
    form.WindowMoved(WindowState::Normal, {100, 200, 5000, 5000});
    CHECK(form.Place() == Designed);
    CHECK(form.resizes == 2);
    CHECK(window.shown == std::vector{FormAspect::Position});
}

TEST_CASE_FIXTURE(FormWindowFixture,
                  "what the program changes is shown, and raises Resize for state and size") {
    form.SetState(WindowState::Minimised);
    CHECK(form.resizes == 1);
    form.SetSize(5000, 7920);
    CHECK(form.resizes == 2);
    form.SetSize(5000, 5000);
    CHECK(form.resizes == 3);
    form.SetLeft(1);
    form.SetTop(1);
    CHECK(form.resizes == 3);
    form.SetCaption("neu");
    form.SetInTaskbar(false);
    form.SetPointer(Hourglass);
    using enum FormAspect;
    CHECK(window.shown == std::vector{State, Position, Position, Position, Position, Caption,
                                      TaskbarEntry, Pointer});
    CHECK(form.Place() == Bounds{1, 1, 5000, 5000});
    CHECK(form.Caption() == "neu");
    CHECK_FALSE(form.InTaskbar());
    CHECK(form.Pointer() == 11);
}

TEST_CASE_FIXTURE(FormWindowFixture, "what stays as it was is not shown again and raises nothing") {
    form.SetState(WindowState::Normal);
    form.SetSize(9990, 7920);
    form.SetLeft(100);
    form.SetTop(200);
    form.SetCaption("Quillmore");
    form.SetInTaskbar(true);
    form.SetPointer(DefaultPointer);
    CHECK(window.shown.empty());
    CHECK(form.resizes == 0);
}

TEST_CASE("before the window is first seen neither program nor platform raises Resize") {
    NotingHost host;
    CountingForm form(host);
    form.Load();
    form.SetState(WindowState::Minimised);
    form.SetSize(1, 1);
    form.WindowMoved(WindowState::Maximised, {0, 0, 15360, 11100});
    CHECK(form.resizes == 0);
    form.Show();
    CHECK(form.resizes == 1);
}

TEST_CASE_FIXTURE(FormWindowFixture, "showing and hiding are shown by the window") {
    form.Hide();
    form.Show();
    CHECK(window.shown == std::vector{FormAspect::Visible, FormAspect::Visible});
    CHECK(form.resizes == 0);
}

TEST_CASE_FIXTURE(FormWindowFixture,
                  "a key goes to the form, which says whether it has used it up") {
    CHECK(form.KeyPressed(toolkit::key::F4));
    CHECK_FALSE(form.KeyPressed(0x72));
}
