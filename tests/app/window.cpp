#include <doctest/doctest.h>

#include <vector>

#include "app/program.h"

using namespace app_test;
using toolkit::WindowState;

namespace {

// Notes between the machine's calls what of the window is shown anew.
struct Watched : Program, toolkit::FormView {
    std::vector<std::string> happened;

    Watched() {
        REQUIRE(Start());
        Check("chkTrayIcon").SetValue(1);
        before = form->View();
        form->SetView(this);
        machine.journal.Clear();
    }
    ~Watched() override { form->SetView(before); }
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

    void Refresh(toolkit::FormAspect what) override {
        TakeCalls();
        if (what == toolkit::FormAspect::State) happened.emplace_back("state");
        if (what == toolkit::FormAspect::TaskbarEntry) {
            happened.emplace_back(form->InTaskbar() ? "in taskbar" : "out of taskbar");
        }
        if (what == toolkit::FormAspect::Visible) {
            happened.emplace_back(form->Visible() ? "shown" : "hidden");
        }
    }
    void TakeCalls() {
        for (const std::string& line : machine.journal.Lines()) happened.push_back(line);
        machine.journal.Clear();
    }

  private:
    toolkit::FormView* before;
};

using Happened = std::vector<std::string>;

}  // namespace

TEST_CASE("the normal window snaps back to 9990 by 7920 twips") {
    Program program;
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Normal, {50, 60, 12000, 9000});
    CHECK(program.form->Place() == toolkit::Bounds{50, 60, 9990, 7920});
}

TEST_CASE("a maximised window is not touched") {
    Program program;
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Maximised, {0, 0, 15360, 11100});
    CHECK(program.form->Place().width == 15360);
}

TEST_CASE("minimising with the tray option hides the window and shows the tray icon") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK_FALSE(program.form->Visible());
    CHECK_FALSE(program.form->InTaskbar());
    CHECK(program.machine.tray.shown);
    CHECK(program.machine.tray.hasIcon);
}

TEST_CASE("minimising without the tray option keeps the taskbar entry") {
    Program program;
    REQUIRE(program.Start());
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK(program.form->Visible());
    CHECK(program.form->InTaskbar());
    CHECK_FALSE(program.machine.tray.shown);
}

TEST_CASE("the tray icon brings the window back to its normal state and hides itself") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    program.machine.tray.onRestore();
    CHECK(program.form->State() == WindowState::Normal);
    CHECK(program.form->InTaskbar());
    CHECK(program.form->Visible());
    CHECK_FALSE(program.machine.tray.shown);
    CHECK(program.form->Place().width == 9990);
}

TEST_CASE("after the tray brought the window back, closing stores its place and server name") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    program.Text("txtSyncServer").SetText("zeit");
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    program.machine.tray.onRestore();
    CHECK(program.Close());
    CHECK(program.Stored("State") == "0");
    CHECK(program.Stored("ServerName") == "zeit");
}

TEST_CASE("minimising without the tray option makes a hidden taskbar entry visible again") {
    Program program;
    REQUIRE(program.Start());
    program.form->SetInTaskbar(false);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK(program.form->InTaskbar());
}

TEST_CASE_FIXTURE(
    Watched, "into the tray: first the icon, without its tip, then the taskbar, then the window") {
    form->WindowMoved(WindowState::Minimised, form->Place());
    TakeCalls();
    CHECK(happened == Happened{"Tray.SetIcon", "Tray.SetShown 1", "out of taskbar", "hidden"});
}

TEST_CASE_FIXTURE(Watched, "out of the tray: first the state, last the icon's end") {
    form->WindowMoved(WindowState::Minimised, form->Place());
    happened.clear();
    machine.journal.Clear();
    machine.tray.onRestore();
    TakeCalls();
    CHECK(happened == Happened{"state", "in taskbar", "shown", "Tray.SetShown 0"});
}

TEST_CASE("the grey state of the tray's box minimises neither into the tray nor the taskbar") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(2);
    program.form->SetInTaskbar(false);
    program.form->WindowMoved(WindowState::Minimised, program.form->Place());
    CHECK_FALSE(program.form->InTaskbar());
    CHECK(program.form->Visible());
    CHECK_FALSE(program.machine.tray.shown);
}
