// The tips that controls show by themselves.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/win32/clock.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

struct TipSearch {
    HWND control = nullptr;
    int windows = 0;
    std::string text;
};

BOOL CALLBACK LookForTip(HWND window, LPARAM lParam) {
    auto* search = reinterpret_cast<TipSearch*>(lParam);
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    if (std::wstring(name) != TOOLTIPS_CLASSW) return TRUE;
    ++search->windows;
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    SendMessageW(window, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool));
    if (reinterpret_cast<HWND>(tool.uId) != search->control) return TRUE;
    // The tooltip window has no text of its own and asks for it, as when it is about to show.
    wchar_t text[1024] = L"";
    tool.lpszText = text;
    SendMessageW(window, TTM_GETTEXTW, std::size(text), reinterpret_cast<LPARAM>(&tool));
    search->text += platform::win32::FromWide(text);
    return TRUE;
}

// The tooltip windows of this process, and what they have for the control.
TipSearch Tips(HWND control = nullptr) {
    TipSearch search;
    search.control = control;
    EnumThreadWindows(GetCurrentThreadId(), LookForTip, reinterpret_cast<LPARAM>(&search));
    return search;
}

struct TipsFixture {
    Desk desk;
    TestForm form{desk.host, "frmMain"};
    toolkit::CheckBox& box = form.Add<toolkit::CheckBox>("chk", "Kasten");
    toolkit::TextBox& text = form.Add<toolkit::TextBox>("txt");
    platform::win32::Clock clock{desk.messages};
    controls::chameleonButton& button =
        form.Add<controls::chameleonButton>("cmd", controls::Persisted{"TX=Knopf"}, clock);
    toolkit::Label& path = form.Add<toolkit::Label>("lbl", "C:\\a", toolkit::LabelStyle::Path);

    void Show() {
        form.SetLayout(toolkit::Column({Leaf(box), Leaf(text), Leaf(button), Leaf(path)}));
        form.Show();
    }
    // What the mouse is told when it comes there.
    std::string TipOf(const char* name) const {
        const HWND window = desk.Find(form, name);
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return Tips(window).text;
    }
};

}  // namespace

TEST_CASE_FIXTURE(TipsFixture, "a control without a tip makes no tooltip window") {
    Show();
    CHECK(Tips().windows == 0);
}

TEST_CASE_FIXTURE(TipsFixture, "a tip makes no tooltip window before the mouse comes") {
    box.SetToolTip("Größe");
    Show();
    path.SetToolTip("C:\\eins");
    CHECK(Tips().windows == 0);
    CHECK(TipOf("chk") == "Größe");
    CHECK(Tips().windows == 1);
}

TEST_CASE_FIXTURE(TipsFixture,
                  "a drawn button offers its tip, also where it shows a pointer of its own") {
    Show();
    button.SetHandPointer(true);
    button.SetToolTip("Knopf");
    CHECK(TipOf("cmd") == "Knopf");
}

TEST_CASE_FIXTURE(TipsFixture,
                  "a tip set before the form is loaded is told to the mouse that comes") {
    box.SetToolTip("Größe & Länge");
    Show();
    CHECK(TipOf("chk") == "Größe & Länge");
    CHECK(TipOf("txt") == "");
}

TEST_CASE_FIXTURE(TipsFixture,
                  "a tip follows the control, in the same window, and goes when empty") {
    Show();
    path.SetToolTip("C:\\eins");
    CHECK(TipOf("lbl") == "C:\\eins");
    path.SetToolTip("C:\\zwei");
    CHECK(TipOf("lbl") == "C:\\zwei");
    CHECK(Tips().windows == 1);
    path.SetToolTip("");
    CHECK(Tips().windows == 0);
}

TEST_CASE_FIXTURE(TipsFixture, "a tip that is being read follows the control") {
    path.SetToolTip("C:\\eins");
    Show();
    RealMouse mouse;
    const auto shown = [] {
        const HWND tip = FindWindowW(TOOLTIPS_CLASSW, nullptr);
        return tip && IsWindowVisible(tip) ? windows::TextOf(tip) : "";
    };
    SetForegroundWindow(desk.host.WindowOf(form));
    RealMouse::MoveTo(desk.Find(form, "lbl"), 4, 4);
    ServeQueue();
    RealMouse::MoveTo(desk.Find(form, "lbl"), 6, 5);
    ServeUntil([&] { return shown() == "C:\\eins"; });
    path.SetToolTip("C:\\zwei");
    CHECK(shown() == "C:\\zwei");
}

TEST_CASE_FIXTURE(TipsFixture, "a label of the style Path sees the mouse, for its tip") {
    Show();
    POINT point{2, 2};
    ClientToScreen(desk.Find(form, "lbl"), &point);
    CHECK(WindowFromPoint(point) == desk.Find(form, "lbl"));
}

TEST_CASE_FIXTURE(TipsFixture,
                  "a path that is cut is told whole by its label, one that fits is not") {
    Show();
    CHECK(TipOf("lbl") == "");
    const std::string longPath = "C:\\Tom & Jerry\\" + std::string(100, 'x');
    path.SetCaption(longPath);
    CHECK(TipOf("lbl") == longPath);
    path.SetToolTip("C:\\eins");
    CHECK(TipOf("lbl") == "C:\\eins");
    path.SetToolTip("");
    CHECK(TipOf("lbl") == longPath);
    path.SetCaption("C:\\a");
    CHECK(TipOf("lbl") == "");
}

TEST_CASE_FIXTURE(TipsFixture, "tips go with their form, also of controls that watch their keys") {
    text.onKeyPress = [](char16_t&) {};
    text.SetToolTip("Text");
    box.SetToolTip("Kasten");
    Show();
    CHECK(TipOf("txt") == "Text");
    CHECK(TipOf("chk") == "Kasten");
    REQUIRE(Tips().windows == 2);
    SendMessageW(desk.Find(form, "txt"), WM_CHAR, 'a', 0);
    CHECK(text.Text() == "a");
    form.Unload();
    CHECK(Tips().windows == 0);
}

TEST_CASE_FIXTURE(TipsFixture,
                  "the host tells the number of a control's window while there is one") {
    CHECK(desk.host.HandleOf(box) == 0);
    Show();
    CHECK(desk.host.HandleOf(box) == reinterpret_cast<std::uintptr_t>(desk.Find(form, "chk")));
    form.Unload();
    CHECK(desk.host.HandleOf(box) == 0);
}
