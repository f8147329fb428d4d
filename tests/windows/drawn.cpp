#include <doctest/doctest.h>

#include "platform/win32/windows/accessmarks.h"
#include "support/standinfunction.h"
#include "windows/desk.h"

using namespace windows;

namespace {

struct OneButton : Desk {
    TestForm form{host, "frmMain"};
    PlainButton& button = form.Add<PlainButton>("cmd", "&Knopf");
    HWND window = nullptr;

    OneButton() {
        form.SetLayout(Leaf(button));
        form.Show();
        window = Find(form, "cmd");
    }
};

}  // namespace

TEST_CASE("a drawn button answers a script's messages as a standard button does") {
    OneButton desk;
    wchar_t windowClass[32];
    GetClassNameW(desk.window, windowClass, 32);
    CHECK(platform::win32::FromWide(windowClass) == "plainButton");
    CHECK(TextOf(desk.window) == "&Knopf");
    CHECK(SendMessageW(desk.window, WM_GETTEXTLENGTH, 0, 0) == 6);
    SendMessageW(desk.window, BM_CLICK, 0, 0);
    CHECK(desk.button.presses == 1);
    SetWindowTextW(desk.window, L"Größe");
    CHECK(desk.button.Caption() == "Größe");
    desk.button.SetCaption("wieder");
    CHECK(TextOf(desk.window) == "wieder");
}

TEST_CASE("a disabled drawn button does not answer a click") {
    OneButton desk;
    desk.button.SetEnabled(false);
    CHECK_FALSE(IsWindowEnabled(desk.window));
    SendMessageW(desk.window, BM_CLICK, 0, 0);
    CHECK(desk.button.presses == 0);
}

TEST_CASE("mouse and keys reach a drawn button, arrow keys too") {
    OneButton desk;
    SendMessageW(desk.window, WM_RBUTTONDOWN, MK_RBUTTON, 0);
    CHECK(desk.button.lastDown == toolkit::MouseButton::Right);
    SendMessageW(desk.window, WM_KEYDOWN, VK_LEFT, 0);
    CHECK(desk.button.lastKey == VK_LEFT);
    CHECK((SendMessageW(desk.window, WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS) != 0);
}

TEST_CASE("asking for a new picture paints once the queue is served") {
    OneButton desk;
    ServeQueue();
    const int before = desk.button.paints;
    desk.button.View()->Repaint();
    ServeQueue();
    CHECK(desk.button.paints == before + 1);
}

TEST_CASE("a button that unloads its form from its own click does no harm") {
    OneButton desk;
    desk.button.onPress = [&] { desk.form.Unload(); };
    SendMessageW(desk.window, BM_CLICK, 0, 0);
    CHECK_FALSE(desk.form.Loaded());
    CHECK(desk.button.View() == nullptr);
    CHECK_FALSE(IsWindow(desk.window));
}

TEST_CASE(
    "Return presses the focused button, otherwise the form's, and Escape the cancelling one") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    form.Add<toolkit::TextBox>("txt");
    auto& ok = form.Add<PlainButton>("cmdOK", "OK");
    auto& cancel = form.Add<PlainButton>("cmdCancel", "Abbrechen");
    form.defaultButton = &ok;
    form.cancelButton = &cancel;
    form.Show();
    const auto order = [&](int id) {
        SendMessageW(desk.host.WindowOf(form), WM_COMMAND, static_cast<WPARAM>(id), 0);
    };
    SetFocus(desk.Find(form, "txt"));
    CHECK(ok.isDefault);
    order(IDOK);
    CHECK(ok.presses == 1);
    SetFocus(desk.Find(form, "cmdCancel"));
    CHECK(cancel.isDefault);
    CHECK_FALSE(ok.isDefault);
    order(IDOK);
    CHECK(ok.presses == 1);
    CHECK(cancel.presses == 1);
    SetFocus(desk.Find(form, "txt"));
    CHECK(ok.isDefault);
    order(IDCANCEL);
    CHECK(cancel.presses == 2);
    cancel.SetEnabled(false);
    order(IDCANCEL);
    CHECK(cancel.presses == 2);
}

namespace {

extern "C" {
extern void* entryOfTextExtent asm("__imp__GetTextExtentPoint32W@16");
}
void* realTextExtent = nullptr;

// As Windows XP measures: no characters have no height either.
BOOL WINAPI MeasureAsXp(HDC dc, LPCWSTR text, int length, LPSIZE size) {
    if (length > 0) {
        return reinterpret_cast<decltype(&GetTextExtentPoint32W)>(realTextExtent)(dc, text, length,
                                                                                  size);
    }
    *size = {};
    return TRUE;
}

}  // namespace

TEST_CASE(
    "a text without characters is as high as others, also where the system says it has none") {
    const support::StandInFunction other(entryOfTextExtent, MeasureAsXp);
    realTextExtent = other.Real();
    const HDC screen = GetDC(nullptr);
    const toolkit::Size none = platform::win32::ExtentOf(screen, "");
    CHECK(none.width == 0);
    CHECK(none.height > 0);
    CHECK(none.height == platform::win32::ExtentOf(screen, "0").height);
    ReleaseDC(nullptr, screen);
}
