#include <doctest/doctest.h>

#include "endtoend/realkeys.h"
#include "endtoend/tools.h"
#include "endtoend/trayuser.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"

namespace endtoend {
namespace {

// The program hiding in the tray.
struct HiddenProgram {
    Workplace workplace;
    OpenProgram program{workplace};
    TrayUser user{program};
    HWND form = program.Find("frmMain");

    HiddenProgram() { user.Hide(); }
};

TEST_CASE_FIXTURE(HiddenProgram, "the first item of the tray menu brings the window back") {
    user.Choose(1);
    program.Wait("frmMain");
    Until("the normal window", [&] { return !IsIconic(form); });
}

TEST_CASE_FIXTURE(HiddenProgram, "a double click on the tray icon brings the window back") {
    user.Mouse(WM_LBUTTONDBLCLK);
    program.Wait("frmMain");
    Until("the normal window", [&] { return !IsIconic(form); });
}

// Every question here is answered by No: a Yes would really end the session.
TEST_CASE_FIXTURE(HiddenProgram, "the ends of the session ask, and No leaves the program running") {
    const std::pair<int, const char*> questions[] = {
        {3, "Benutzer abmelden"}, {4, "Computer neu starten"}, {5, "Computer herunterfahren"}};
    for (const auto& [item, title] : questions) {
        CAPTURE(title);
        user.Choose(item);
        const MessageBox box = program.Answer(title, IDNO);
        CHECK(box.text.substr(0, 5) == "Soll ");
        CHECK(box.buttons == std::vector{IDYES, IDNO});
    }
    CHECK(program.Running());
    CHECK_FALSE(IsWindowVisible(form));
}

TEST_CASE_FIXTURE(HiddenProgram, "the second item of the tray menu locks the station") {
    const StandIn runner(SystemFolder() + "\\rundll32.exe");
    user.Choose(2);
    const Started started = runner.WaitStart();
    CHECK(started.commandLine == RunnerCommand("user32.dll,LockWorkStation"));
    CHECK_FALSE(IsWindowVisible(form));
}

TEST_CASE_FIXTURE(HiddenProgram, "a shell that starts anew gets the icon back, which still works") {
    Until("the icon", [&] { return user.HasIcon(); });
    user.LoseIcon();
    REQUIRE_FALSE(user.HasIcon());
    TrayUser::TellStart();
    Until("the icon's return", [&] { return user.HasIcon(); });
    TrayUser::DoubleClickIcon();
    program.Wait("frmMain");
    Until("the icon's end", [&] { return !user.HasIcon(); });
    TrayUser::TellStart();
    CHECK_FALSE(user.HasIcon());
}

TEST_CASE_FIXTURE(HiddenProgram, "a tray menu that is left gives the keyboard back") {
    const platform::win32::WindowHandle other(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"",
                                                              WS_POPUP | WS_VISIBLE, 0, 0, 20, 20,
                                                              nullptr, nullptr, nullptr, nullptr));
    const auto isInFront = [&] {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        return GetForegroundWindow() == other.Get();
    };
    SetForegroundWindow(other.Get());
    Until("the other window in front", isInFront);
    user.Mouse(WM_RBUTTONUP);
    Until("the tray menu", [&] { return user.Menu() != nullptr && !isInFront(); });
    Press(VK_ESCAPE);
    Until("the tray menu's end", [&] { return user.Menu() == nullptr; });
    Until("the other window in front again", isInFront);
}

TEST_CASE_FIXTURE(HiddenProgram, "no closing of the windows that are never shown harms the tray") {
    for (const HWND window : program.TopLevel()) {
        if (window != form) PostMessageW(window, WM_CLOSE, 0, 0);
    }
    user.Choose(1);
    program.Wait("frmMain");
    Until("the window in front", [&] { return GetForegroundWindow() == form; });
    user.Hide();
    user.Mouse(WM_LBUTTONDBLCLK);
    program.Wait("frmMain");
    program.CloseAndWait();
    CHECK(workplace.Stored("Options", "State") == "0");
}

TEST_CASE_FIXTURE(HiddenProgram, "the last item of the tray menu ends the program") {
    user.Choose(6);
    CHECK(program.WaitForEnd() == 0);
    CHECK(workplace.Stored("Options", "TrayIcon") == "1");
    CHECK(workplace.Stored("Options", "Left") == "(absent)");
}

}  // namespace
}  // namespace endtoend
