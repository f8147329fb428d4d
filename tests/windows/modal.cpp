#include <doctest/doctest.h>

#include "platform/win32/handle.h"
#include "windows/desk.h"

using namespace windows;

namespace {

struct TwoForms : Desk {
    TestForm main{host, "frmMain"};
    TestForm dialog{host, "frmPassword"};
    PlainButton& button = dialog.Add<PlainButton>("cmdOK", "OK");

    TwoForms() {
        main.isDialog = false;
        main.Show();
        dialog.Load();
    }
    // What the user does as soon as the dialog serves its messages.
    void Meanwhile() const { PostMessageW(Find(dialog, "cmdOK"), BM_CLICK, 0, 0); }
    bool MainIsEnabled() const { return IsWindowEnabled(host.WindowOf(main)); }
};

DWORD WINAPI CloseSoon(void* window) {
    Sleep(50);
    SendMessageW(static_cast<HWND>(window), WM_CLOSE, 0, 0);
    return 0;
}

}  // namespace

TEST_CASE("a modal form blocks the others until it is hidden, and stays loaded") {
    TwoForms desk;
    bool blocked = false;
    desk.button.onPress = [&] {
        blocked = !desk.MainIsEnabled();
        SendMessageW(desk.host.WindowOf(desk.main), WM_CLOSE, 0, 0);
        desk.dialog.Hide();
    };
    desk.Meanwhile();
    desk.dialog.ShowModal();
    CHECK(blocked);
    CHECK(desk.main.Loaded());
    CHECK(desk.MainIsEnabled());
    CHECK(desk.dialog.Loaded());
    CHECK(GetActiveWindow() == desk.host.WindowOf(desk.main));
}

TEST_CASE("a modal form that is unloaded returns to its caller") {
    TwoForms desk;
    desk.button.onPress = [&] { desk.dialog.Unload(); };
    desk.Meanwhile();
    desk.dialog.ShowModal();
    CHECK_FALSE(desk.dialog.Loaded());
    CHECK(desk.MainIsEnabled());
}

TEST_CASE("a modal form over a modal form leaves the first one blocking") {
    TwoForms desk;
    TestForm second(desk.host, "frmAbout");
    auto& close = second.Add<PlainButton>("cmdClose", "Zu");
    second.Load();
    bool stillBlocked = false;
    close.onPress = [&] { second.Hide(); };
    desk.button.onPress = [&] {
        PostMessageW(desk.Find(second, "cmdClose"), BM_CLICK, 0, 0);
        second.ShowModal();
        stillBlocked = !desk.MainIsEnabled() && IsWindowEnabled(desk.host.WindowOf(desk.dialog));
        desk.dialog.Hide();
    };
    desk.Meanwhile();
    desk.dialog.ShowModal();
    CHECK(stillBlocked);
    CHECK(desk.MainIsEnabled());
}

TEST_CASE("a modal form whose end is sent by another thread wakes its loop") {
    TwoForms desk;
    const HWND window = desk.host.WindowOf(desk.dialog);
    const platform::win32::KernelHandle thread(
        CreateThread(nullptr, 0, CloseSoon, window, 0, nullptr));
    desk.dialog.ShowModal();
    CHECK_FALSE(desk.dialog.Loaded());
    WaitForSingleObject(thread.Get(), INFINITE);
}

TEST_CASE("the focus goes to the form's first control each time it is shown") {
    TwoForms desk;
    TestForm form(desk.host, "frmAbout");
    form.Add<toolkit::TextBox>("txtOne");
    form.firstFocus = &form.Add<toolkit::TextBox>("txtTwo");
    form.Show();
    CHECK(GetFocus() == desk.Find(form, "txtTwo"));
    SetFocus(desk.Find(form, "txtOne"));
    form.Hide();
    form.Show();
    CHECK(GetFocus() == desk.Find(form, "txtTwo"));
}
