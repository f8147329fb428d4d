#include "platform/win32/tray.h"

#include <doctest/doctest.h>

#include <vector>

#include "contract/machine.h"
#include "contract/win32/boxes.h"
#include "platform/messages.h"
#include "runtime/failure.h"

namespace {

using platform::win32::WindowHandle;

// A window of the shell's class, to which the notification calls go. How they are packed is the
// system's business; the test only counts them.
class ShellStandIn {
  public:
    ShellStandIn() {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.lpszClassName = L"Shell_TrayWnd";
        RegisterClassW(&windowClass);
        window_.Reset(CreateWindowExW(WS_EX_TOPMOST, L"Shell_TrayWnd", L"", WS_POPUP, 0, 0, 0, 0,
                                      nullptr, nullptr, nullptr, nullptr));
        calls = 0;
        refusals = 0;
    }
    ~ShellStandIn() {
        window_.Close();
        UnregisterClassW(L"Shell_TrayWnd", nullptr);
    }

    static inline int calls;
    // How many of the next calls are refused.
    static inline int refusals;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COPYDATA) {
            ++calls;
            return refusals == 0 || refusals-- == 0;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    WindowHandle window_;
};

struct WindowsTrayFixture {
    ShellStandIn shell;
    contract::TestMachine machine;
    platform::Tray& tray = machine.Services().tray;

    // What the shell would send to the window that stands behind the icon.
    void Send(UINT message, LPARAM lParam) {
        // The clock's window is of the same class and passes such messages over.
        for (HWND window = nullptr;
             (window = FindWindowExW(nullptr, window, L"QuillmoreHidden", nullptr)) != nullptr;) {
            SendMessageW(window, message, 0, lParam);
        }
    }
    // The broadcast of a shell that starts. It reaches the top-level windows of the whole desktop.
    void RestartShell() {
        SendMessageTimeoutW(HWND_BROADCAST, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0,
                            SMTO_ABORTIFHUNG, 2000, nullptr);
    }
    void Mouse(UINT message) { Send(WM_APP + 1, static_cast<LPARAM>(message)); }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsTrayFixture, "the shell is called when the icon really comes or goes") {
    tray.SetIcon();
    tray.SetTip("Quillmore");
    CHECK(shell.calls == 0);
    tray.SetShown(false);
    CHECK(shell.calls == 0);
    tray.SetShown(true);
    CHECK(shell.calls == 1);
    tray.SetShown(true);
    CHECK(shell.calls == 1);
    tray.SetShown(false);
    CHECK(shell.calls == 2);
    tray.SetShown(false);
    CHECK(shell.calls == 2);
}

TEST_CASE_FIXTURE(WindowsTrayFixture, "a shown icon takes a new tip and a new picture at once") {
    tray.SetShown(true);
    tray.SetTip(std::string(300, 'x'));
    CHECK(shell.calls == 2);
    tray.SetIcon();
    CHECK(shell.calls == 3);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "when the shell starts anew a wanted icon comes back, no other") {
    tray.SetShown(true);
    RestartShell();
    CHECK(shell.calls == 2);
    tray.SetShown(false);
    CHECK(shell.calls == 3);
    RestartShell();
    CHECK(shell.calls == 3);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "an icon that the shell refused is tried again when it starts") {
    shell.refusals = 2;
    tray.SetShown(true);
    CHECK(shell.calls == 2);
    tray.SetTip("Quillmore");
    CHECK(shell.calls == 2);
    RestartShell();
    CHECK(shell.calls == 3);
    tray.SetTip("anders");
    CHECK(shell.calls == 4);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "an icon that a busy shell refused is tried until it is there") {
    shell.refusals = 4;
    tray.SetShown(true);
    CHECK(shell.calls == 2);
    // The clock's window knows no such timer.
    Send(WM_TIMER, 0);
    CHECK(shell.calls == 4);
    const DWORD start = GetTickCount();
    MSG message;
    while (shell.calls == 4 && GetTickCount() - start < 10000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }
    CHECK(shell.calls == 5);
    Send(WM_TIMER, 0);
    CHECK(shell.calls == 5);
}

TEST_CASE_FIXTURE(WindowsTrayFixture, "an icon that is no longer wanted is not tried again") {
    shell.refusals = 2;
    tray.SetShown(true);
    tray.SetShown(false);
    CHECK(shell.calls == 3);
    Send(WM_TIMER, 0);
    CHECK(shell.calls == 3);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "a double click brings the program to the front, unless a box holds it") {
    tray.SetShown(true);
    const platform::win32::WindowHandle other(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"",
                                                              WS_POPUP | WS_VISIBLE, 0, 0, 20, 20,
                                                              nullptr, nullptr, nullptr, nullptr));
    SetForegroundWindow(other.Get());
    HWND front = nullptr;
    tray.onRestore = [&] { front = GetForegroundWindow(); };
    const auto enableHidden = [](BOOL enabled) {
        for (HWND window = nullptr;
             (window = FindWindowExW(nullptr, window, L"QuillmoreHidden", nullptr)) != nullptr;) {
            EnableWindow(window, enabled);
        }
    };
    enableHidden(FALSE);
    Mouse(WM_LBUTTONDBLCLK);
    CHECK(front == other.Get());
    enableHidden(TRUE);
    Mouse(WM_LBUTTONDBLCLK);
    wchar_t name[64] = {};
    GetClassNameW(front, name, 64);
    CHECK(std::wstring(name) == L"QuillmoreHidden");
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "a busy shell that takes the icon and says no is believed the second time") {
    shell.refusals = 1;
    tray.SetShown(true);
    CHECK(shell.calls == 2);
    tray.SetTip("Quillmore");
    CHECK(shell.calls == 3);
    tray.SetShown(false);
    CHECK(shell.calls == 4);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "a wanted icon is taken away even from a shell that seemed to refuse it") {
    shell.refusals = 2;
    tray.SetShown(true);
    tray.SetShown(false);
    CHECK(shell.calls == 3);
    RestartShell();
    CHECK(shell.calls == 3);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "a released button on the icon is told, a double click restores") {
    std::vector<int> buttons;
    int restores = 0;
    tray.SetShown(true);
    Mouse(WM_LBUTTONUP);  // nobody listens yet
    tray.onMouseUp = [&](int button) { buttons.push_back(button); };
    tray.onRestore = [&] { ++restores; };
    Mouse(WM_LBUTTONDOWN);
    Mouse(WM_LBUTTONUP);
    Mouse(WM_RBUTTONDOWN);
    Mouse(WM_RBUTTONUP);
    Mouse(WM_MOUSEMOVE);
    Mouse(WM_RBUTTONDBLCLK);
    CHECK(buttons == std::vector{1, 2});
    CHECK(restores == 0);
    Mouse(WM_LBUTTONDBLCLK);
    CHECK(restores == 1);
}

TEST_CASE_FIXTURE(WindowsTrayFixture,
                  "a failure in a tray event ends in a message and not in the shell") {
    contract::BoxAnswerer user(platform::message::Ok);
    tray.SetShown(true);
    tray.onRestore = [] { throw runtime::Failure(5); };
    Mouse(WM_LBUTTONDBLCLK);
    CHECK(user.boxes == 1);
}

TEST_CASE("an icon that is shown goes with the machine") {
    ShellStandIn shell;
    {
        contract::TestMachine machine;
        machine.Services().tray.SetShown(true);
        CHECK(shell.calls == 1);
    }
    CHECK(shell.calls == 2);
}
