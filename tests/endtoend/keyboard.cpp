// The main window by the keyboard alone.
#include <doctest/doctest.h>

#include "endtoend/pages.h"
#include "endtoend/realkeys.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr int LastPage = 7;

struct Keyboard {
    Workplace workplace;
    OpenProgram program{workplace};
    const HWND form = program.Wait("frmMain");

    Keyboard() {
        SetForegroundWindow(form);
        Until("the focus", [&] { return Focus() && GetAncestor(Focus(), GA_ROOT) == form; });
    }

    HWND Focus() const {
        GUITHREADINFO thread = {};
        thread.cbSize = sizeof thread;
        GetGUIThreadInfo(GetWindowThreadProcessId(form, nullptr), &thread);
        return thread.hwndFocus;
    }
    void ExpectFocus(const std::string& name) const {
        Until("the focus on " + name, [&] { return NameOf(Focus()) == name; });
    }
    void ExpectPage(int page) const {
        Until("page " + std::to_string(page), [&] { return program.CurrentTab() == page; });
    }
    static void TurnForwards() { PressWith(VK_CONTROL, VK_TAB); }
    static void TurnBack() {
        Key(VK_SHIFT, true);
        TurnForwards();
        Key(VK_SHIFT, false);
    }
    // From the strip of the tabs backwards onto the page of tools.
    void GoToTools() const {
        TurnBack();
        ExpectPage(LastPage);
        ExpectFocus("SSTab1");
        Press(VK_TAB);
        ExpectFocus("lblCMD");
    }
};

TEST_CASE_FIXTURE(Keyboard, "Strg+Tab turns the pages, all round and in both directions") {
    for (int page = 1; page <= LastPage; ++page) {
        TurnForwards();
        ExpectPage(page);
    }
    TurnForwards();
    ExpectPage(0);
    TurnBack();
    ExpectPage(LastPage);
    TurnBack();
    ExpectPage(ShortcutsPage);
    program.CloseAndWait();
    CHECK(workplace.Stored("Options", "Tab") == "6");
}

TEST_CASE_FIXTURE(Keyboard, "a tool is started by Return or Space on its label") {
    const StandIn shell(WindowsFolder() + "\\System32\\cmd.exe");
    const StandIn cleaner(WindowsFolder() + "\\System32\\cleanmgr.exe");
    GoToTools();
    Press(VK_RETURN);
    CHECK(shell.WaitStart().commandLine == shell.Path());
    SetForegroundWindow(form);
    ExpectFocus("lblCMD");
    Press(VK_DOWN);
    ExpectFocus("lblComputerverwaltung");
    Press(VK_DOWN);
    ExpectFocus("lblDatenträgerbereinigung");
    Press(VK_SPACE);
    CHECK(cleaner.WaitStart().commandLine == cleaner.Path());
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(Keyboard, "F4 on a label of a tool closes the window") {
    GoToTools();
    Press(VK_F4);
    CHECK(program.WaitForEnd() == 0);
}

}  // namespace
}  // namespace endtoend
