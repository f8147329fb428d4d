// The events of a form from its loading to its end, among what it asks of its host.
#include <doctest/doctest.h>

#include <utility>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "toolkit/journal.h"
#include "toolkit/keys.h"

using namespace toolkit;

namespace {

// Notes its events in the journal of its host; `during` runs inside the event of that name.
class LivingForm final : public Form {
  public:
    explicit LivingForm(NotingHost& host)
        : Form(host, "frm", "", {0, 0, 6000, 4000}), journal_(host.journal) {}

    void During(std::string event, std::function<void()> what) {
        during_ = {std::move(event), std::move(what)};
    }

  protected:
    void OnLoad() override { Note("Load"); }
    void OnResize() override { Note("Resize"); }
    bool OnKeyDown(int virtualKey) override { return virtualKey == toolkit::key::F4; }
    void OnQueryUnload() override { Note("QueryUnload"); }
    void OnUnload() override { Note("Unload"); }

  private:
    void Note(const std::string& event) {
        journal_.push_back(event);
        if (event == during_.first) during_.second();
    }

    Journal& journal_;
    std::pair<std::string, std::function<void()>> during_;
};

struct Life {
    NotingHost host;
    LivingForm form{host};

    // What has happened since the last call.
    Journal Happened() { return std::exchange(host.journal, {}); }
};

void Fail() {
    throw runtime::Failure(runtime::PermissionDenied);
}

}  // namespace

TEST_CASE_FIXTURE(Life, "a form is loaded once, its window before its event") {
    form.During("Load", [&] { CHECK(form.Loaded()); });
    form.Load();
    form.Load();
    CHECK(Happened() == Journal{"open frm", "Load"});
    CHECK(form.Loaded());
    CHECK_FALSE(form.Visible());
}

TEST_CASE_FIXTURE(Life, "the first Show loads the form and raises Resize once, later ones do not") {
    form.During("Resize", [&] { CHECK(form.Visible()); });
    form.Show();
    CHECK(Happened() == Journal{"open frm", "Load", "Resize"});
    form.Show();
    form.Hide();
    CHECK(form.Loaded());
    CHECK_FALSE(form.Visible());
    form.Show();
    CHECK(form.Visible());
    CHECK(Happened().empty());
}

TEST_CASE_FIXTURE(Life, "hiding keeps what the controls hold") {
    auto& box = form.Add<CheckBox>("chkEins", "Eins");
    form.Show();
    box.SetValue(1);
    form.Hide();
    form.Show();
    CHECK(box.Value() == 1);
}

TEST_CASE_FIXTURE(Life, "hiding a form that is not visible does nothing") {
    form.Hide();
    CHECK(Happened().empty());
    CHECK_FALSE(form.Loaded());
}

TEST_CASE_FIXTURE(Life, "a form shown modally is loaded and visible until its user hides it") {
    host.user = [&](Form& shown) {
        CHECK(&shown == &form);
        CHECK(form.Visible());
        form.Hide();
    };
    form.ShowModal();
    CHECK(Happened() == Journal{"open frm", "Load", "Resize", "modal frm"});
    CHECK(form.Loaded());
    form.ShowModal();
    CHECK(Happened() == Journal{"modal frm"});
}

TEST_CASE_FIXTURE(Life, "a form that hides itself while it is shown modally is not waited for") {
    form.During("Resize", [&] { form.Hide(); });
    form.ShowModal();
    CHECK(Happened() == Journal{"open frm", "Load", "Resize"});
}

TEST_CASE_FIXTURE(Life, "a form that unloads itself while it loads is not shown") {
    form.During("Load", [&] { form.Unload(); });
    form.ShowModal();
    CHECK(Happened() == Journal{"open frm", "Load", "QueryUnload", "Unload", "close frm"});
    CHECK_FALSE(form.Visible());
    CHECK_FALSE(form.Loaded());
}

TEST_CASE_FIXTURE(Life, "a form that shows itself while it loads raises Resize once") {
    form.During("Load", [&] { form.Show(); });
    form.Show();
    CHECK(Happened() == Journal{"open frm", "Load", "Resize"});
}

TEST_CASE_FIXTURE(Life, "unloading raises QueryUnload, then Unload, then takes the window away") {
    form.Show();
    Happened();
    form.During("Unload", [&] {
        CHECK(form.Loaded());
        CHECK(form.Visible());
    });
    form.Unload();
    CHECK(Happened() == Journal{"QueryUnload", "Unload", "close frm"});
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(form.Visible());
}

TEST_CASE_FIXTURE(Life, "a form that is not loaded, or no longer, is not unloaded") {
    form.Unload();
    CHECK(Happened().empty());
    form.Load();
    form.Unload();
    Happened();
    form.Unload();
    CHECK(Happened().empty());
}

TEST_CASE_FIXTURE(Life, "another Unload while the form is asked or unloaded does nothing") {
    for (const char* event : {"QueryUnload", "Unload"}) {
        CAPTURE(event);
        form.Show();
        Happened();
        form.During(event, [&] { form.Unload(); });
        form.Unload();
        CHECK(Happened() == Journal{"QueryUnload", "Unload", "close frm"});
        CHECK_FALSE(form.Loaded());
    }
}

TEST_CASE_FIXTURE(Life,
                  "a failure in QueryUnload passes to the caller and leaves the form loaded") {
    form.Show();
    Happened();
    form.During("QueryUnload", Fail);
    CHECK(FailureOf([&] { form.Unload(); }) == 70);
    CHECK(Happened() == Journal{"QueryUnload"});
    CHECK(form.Loaded());
    CHECK(form.Visible());
}

TEST_CASE_FIXTURE(Life,
                  "a failure in Unload leaves the form loaded, and it can be unloaded later") {
    form.Show();
    Happened();
    form.During("Unload", Fail);
    CHECK(FailureOf([&] { form.Unload(); }) == 70);
    CHECK(Happened() == Journal{"QueryUnload", "Unload"});
    CHECK(form.Loaded());
    form.During("", [] {});
    form.Unload();
    CHECK(Happened() == Journal{"QueryUnload", "Unload", "close frm"});
}

TEST_CASE_FIXTURE(Life, "a form unloaded and shown again goes through all events anew") {
    form.Show();
    form.Unload();
    Happened();
    form.Show();
    CHECK(Happened() == Journal{"open frm", "Load", "Resize"});
}

TEST_CASE_FIXTURE(Life,
                  "a moved window raises Resize when its state or size changed, not its place") {
    form.Show();
    Happened();
    form.WindowMoved(WindowState::Normal, {0, 0, 6000, 4000});
    form.WindowMoved(WindowState::Normal, {150, -30, 6000, 4000});
    CHECK(Happened().empty());
    CHECK(form.Place() == Bounds{150, -30, 6000, 4000});
    form.WindowMoved(WindowState::Normal, {150, -30, 6015, 4000});
    CHECK(Happened() == Journal{"Resize"});
    form.WindowMoved(WindowState::Normal, {150, -30, 6015, 4015});
    CHECK(Happened() == Journal{"Resize"});
    form.WindowMoved(WindowState::Minimised, {150, -30, 6015, 4015});
    CHECK(Happened() == Journal{"Resize"});
    CHECK(form.State() == WindowState::Minimised);
}

TEST_CASE_FIXTURE(Life,
                  "the program's own change of state or size raises Resize, its move does not") {
    form.Show();
    Happened();
    form.SetLeft(300);
    form.SetTop(300);
    CHECK(Happened().empty());
    form.SetState(WindowState::Maximised);
    CHECK(Happened() == Journal{"Resize"});
    form.SetSize(6000, 4500);
    CHECK(Happened() == Journal{"Resize"});
    form.SetSize(6500, 4500);
    form.SetSize(6500, 4500);
    form.SetState(WindowState::Maximised);
    CHECK(Happened() == Journal{"Resize"});
}

TEST_CASE_FIXTURE(Life, "a hidden form that was seen before raises Resize when its state changes") {
    form.Show();
    form.Hide();
    Happened();
    form.SetState(WindowState::Minimised);
    CHECK(Happened() == Journal{"Resize"});
}

TEST_CASE_FIXTURE(Life, "no Resize comes before the form is seen the first time") {
    form.Load();
    Happened();
    form.SetState(WindowState::Minimised);
    form.SetSize(9990, 7920);
    form.WindowMoved(WindowState::Normal, {0, 0, 3000, 2000});
    CHECK(Happened().empty());
}

TEST_CASE_FIXTURE(Life, "a form that snaps back to its size settles") {
    form.Show();
    Happened();
    form.During("Resize", [&] { form.SetSize(6000, 4000); });
    form.WindowMoved(WindowState::Normal, {0, 0, 7000, 5000});
    CHECK(form.Place() == Bounds{0, 0, 6000, 4000});
    CHECK(Happened() == Journal{"Resize", "Resize"});
}

TEST_CASE_FIXTURE(Life, "a form tells whether it has used up a key") {
    CHECK(form.KeyPressed(toolkit::key::F4));
    CHECK_FALSE(form.KeyPressed(toolkit::key::F5));
}

TEST_CASE("a form that dies loaded takes its window along and raises nothing") {
    NotingHost host;
    {
        LivingForm form(host);
        form.Load();
        host.journal.clear();
    }
    CHECK(host.journal == Journal{"close frm"});
}

TEST_CASE("a form that dies without a window asks nothing of its host") {
    NotingHost host;
    {
        const LivingForm form(host);
        CHECK_FALSE(form.Loaded());
    }
    CHECK(host.journal.empty());
}
