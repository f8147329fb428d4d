#include <doctest/doctest.h>

#include "endtoend/workplace.h"

namespace endtoend {
namespace {

RECT PlaceOf(HWND form) {
    RECT area = {};
    GetWindowRect(form, &area);
    return area;
}

bool HasFixedSize(HWND form) {
    const RECT area = PlaceOf(form);
    return area.right - area.left == 666 && area.bottom - area.top == 528;
}

// The taskbar's own rule.
bool HasTaskbarEntry(HWND form) {
    const LONG style = GetWindowLongW(form, GWL_EXSTYLE);
    const bool eligible = !GetWindow(form, GW_OWNER) && !(style & WS_EX_TOOLWINDOW);
    return IsWindowVisible(form) && (eligible || (style & WS_EX_APPWINDOW));
}

TEST_CASE("a stored State of 2 opens maximised, and a later restore snaps to the fixed size") {
    const Workplace workplace;
    workplace.Store("Options", "State", "2");
    const OpenProgram program(workplace);
    const HWND form = program.Find("frmMain");
    CHECK(IsZoomed(form));
    CHECK_FALSE(HasFixedSize(form));
    PostMessageW(form, WM_SYSCOMMAND, SC_RESTORE, 0);
    Until("the fixed size", [&] { return !IsZoomed(form) && HasFixedSize(form); });
}

TEST_CASE("a stored State of 2 opens normal once the store knows MinimizeAfterStart") {
    const Workplace workplace;
    workplace.Store("Options", "State", "2");
    workplace.Store("Options", "MinimizeAfterStart", "0");
    const OpenProgram program(workplace);
    CHECK_FALSE(IsZoomed(program.Find("frmMain")));
    CHECK(HasFixedSize(program.Find("frmMain")));
}

TEST_CASE("starting minimised without the tray leaves a minimised window in the taskbar") {
    const Workplace workplace;
    workplace.Store("Options", "MinimizeAfterStart", "1");
    workplace.Store("Options", "TrayIcon", "0");
    const OpenProgram program(workplace);
    const HWND form = program.Find("frmMain");
    CHECK(IsIconic(form));
    CHECK(HasTaskbarEntry(form));
}

TEST_CASE("closing out of the tray stores the options and the tab, but neither place nor server") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const HWND form = program.Find("frmMain");
    program.OpenTab(7);
    program.SetChecked("chkTrayIcon", true);
    CHECK(HasTaskbarEntry(form));
    program.SetText("txtSyncServer", "verloren");
    PostMessageW(form, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    program.WaitGone("frmMain");
    CHECK_FALSE(HasTaskbarEntry(form));
    PostMessageW(form, WM_CLOSE, 0, 0);
    CHECK(program.WaitForEnd() == 0);
    const auto stored = [&](const char* key) { return workplace.Stored("Options", key); };
    CHECK(stored("TrayIcon") == "1");
    CHECK(stored("Tab") == "7");
    for (const char* key : {"State", "Left", "Top", "Width", "Height", "ServerName"}) {
        CAPTURE(key);
        CHECK(stored(key) == "(absent)");
    }
}

}  // namespace
}  // namespace endtoend
