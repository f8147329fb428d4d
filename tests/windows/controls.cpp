#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "platform/win32/windows/controlwindow.h"
#include "runtime/failure.h"
#include "support/standinfunction.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;

// Where the code of this program finds the system's function.
extern "C" {
extern void* entryOfGetNextDlgTabItem asm("__imp__GetNextDlgTabItem@12");
}

namespace {

// As the system's answers where there is one place only. From a place out of use Windows would
// look for ever.
HWND WINAPI NextOfOneInUse(HWND, HWND from, BOOL) {
    CHECK(IsWindowEnabled(from));
    CHECK(IsWindowVisible(from));
    return from;
}

}  // namespace

TEST_CASE("every window carries its control's name in the ANSI code page") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    form.Add<toolkit::CheckBox>("chkÜber(1)", "Über");
    form.Load();
    CHECK(NameOf(desk.host.WindowOf(form)) == "frmMain");
    CHECK(desk.Find(form, "chkÜber(1)") != nullptr);
    form.Unload();
    CHECK(GlobalFindAtomA(platform::win32::ToAnsi("chkÜber(1)").c_str()) == 0);
}

TEST_CASE("a click on a check box reaches the control, and the box shows what it holds") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& box = form.Add<toolkit::CheckBox>("chk", "Kasten");
    form.SetLayout(Leaf(box));
    form.Show();
    const HWND window = desk.Find(form, "chk");

    SUBCASE("a plain click") {
        SendMessageW(window, BM_CLICK, 0, 0);
        CHECK(box.Value() == 1);
        CHECK(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
    }
    SUBCASE("an event that takes the click back") {
        box.onClick = [&] { box.SetValue(0); };
        SendMessageW(window, BM_CLICK, 0, 0);
        CHECK(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_UNCHECKED);
    }
    SUBCASE("an event that fails ends in the default message") {
        box.onClick = [] { throw runtime::Failure(runtime::Overflow); };
        SendMessageW(window, BM_CLICK, 0, 0);
        CHECK(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
        CHECK(desk.messages.texts.size() == 1);
    }
    SUBCASE("a disabled box stays as it is") {
        box.SetEnabled(false);
        SendMessageW(window, BM_CLICK, 0, 0);
        CHECK(box.Value() == 0);
    }
}

TEST_CASE("one option button of a group is selected, and the tabulator stops at that one") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& first = form.Add<toolkit::OptionButton>("opt(0)", "Erste", 1);
    auto& second = form.Add<toolkit::OptionButton>("opt(1)", "Zweite", 1);
    form.SetLayout(toolkit::Column({Leaf(first), Leaf(second)}));
    form.Show();
    const auto isStop = [&](const char* name) {
        return (GetWindowLongW(desk.Find(form, name), GWL_STYLE) & WS_TABSTOP) != 0;
    };
    CHECK(isStop("opt(0)"));
    CHECK_FALSE(isStop("opt(1)"));
    SendMessageW(desk.Find(form, "opt(1)"), BM_CLICK, 0, 0);
    CHECK(second.Value());
    CHECK_FALSE(isStop("opt(0)"));
    CHECK(isStop("opt(1)"));
    first.SetValue(true);
    CHECK(SendMessageW(desk.Find(form, "opt(0)"), BM_GETCHECK, 0, 0) == BST_CHECKED);
    CHECK(SendMessageW(desk.Find(form, "opt(1)"), BM_GETCHECK, 0, 0) == BST_UNCHECKED);
}

namespace {

// Buttons that tell the arrival of the focus as a click, as those of Windows XP do.
class TellingButtons {
  public:
    TellingButtons()
        : any_(CreateWindowW(L"BUTTON", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                             nullptr)) {
        before_ = reinterpret_cast<WNDPROC>(
            SetClassLongW(any_, GCL_WNDPROC, reinterpret_cast<LONG>(Procedure)));
    }
    ~TellingButtons() {
        SetClassLongW(any_, GCL_WNDPROC, reinterpret_cast<LONG>(before_));
        DestroyWindow(any_);
    }
    TellingButtons(const TellingButtons&) = delete;
    TellingButtons& operator=(const TellingButtons&) = delete;

    static inline int told = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = CallWindowProcW(before_, window, message, wParam, lParam);
        if (message != WM_SETFOCUS) return result;
        ++told;
        SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), BN_CLICKED),
                     reinterpret_cast<LPARAM>(window));
        return result;
    }

    HWND any_;
    static inline WNDPROC before_ = nullptr;
};

}  // namespace

TEST_CASE("an option button is chosen by a press or an arrow key, not by the focus that comes") {
    const TellingButtons telling;
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& text = form.Add<toolkit::TextBox>("txt");
    auto& first = form.Add<toolkit::OptionButton>("opt(0)", "Erste", 1);
    auto& second = form.Add<toolkit::OptionButton>("opt(1)", "Zweite", 1);
    form.SetLayout(toolkit::Column({Leaf(text), Leaf(first), Leaf(second)}));
    form.Show();
    SetFocus(desk.Find(form, "txt"));
    const int before = TellingButtons::told;
    SetFocus(desk.Find(form, "opt(0)"));
    REQUIRE(GetFocus() == desk.Find(form, "opt(0)"));
    CHECK(TellingButtons::told == before + 1);
    CHECK_FALSE(first.Value());
    CHECK(SendMessageW(desk.Find(form, "opt(0)"), BM_GETCHECK, 0, 0) == BST_UNCHECKED);
    PostMessageW(desk.Find(form, "opt(0)"), WM_KEYDOWN, VK_SPACE, 0);
    PostMessageW(desk.Find(form, "opt(0)"), WM_KEYUP, VK_SPACE, 0);
    ServeQueue();
    CHECK(first.Value());
    PostMessageW(desk.Find(form, "opt(0)"), WM_KEYDOWN, VK_DOWN, 0);
    desk.host.DoEvents();
    CHECK(second.Value());
    CHECK(GetFocus() == desk.Find(form, "opt(1)"));
}

TEST_CASE("the real tabulator and the coming back of the window choose no option button") {
    Desk desk;
    TestForm other(desk.host, "frmOther");
    other.Add<toolkit::TextBox>("txtOther");
    TestForm form(desk.host, "frmMain");
    auto& text = form.Add<toolkit::TextBox>("txt");
    auto& first = form.Add<toolkit::OptionButton>("opt(0)", "Erste", 1);
    auto& second = form.Add<toolkit::OptionButton>("opt(1)", "Zweite", 1);
    form.SetLayout(toolkit::Column({Leaf(text), Leaf(first), Leaf(second)}));
    other.Show();
    form.Show();
    const auto comes = [&](const std::function<bool()>& done) {
        const DWORD start = GetTickCount();
        while (!done() && GetTickCount() - start < 10000) {
            desk.host.DoEvents();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        }
        return done();
    };
    const auto isOn = [&](const char* name) { return GetFocus() == desk.Find(form, name); };
    SetForegroundWindow(desk.host.WindowOf(form));
    SetFocus(desk.Find(form, "txt"));
    RealMouse::Press(VK_TAB, true);
    RealMouse::Press(VK_TAB, false);
    REQUIRE(comes([&] { return isOn("opt(0)"); }));
    SetForegroundWindow(desk.host.WindowOf(other));
    REQUIRE(comes([&] { return !isOn("opt(0)"); }));
    SetForegroundWindow(desk.host.WindowOf(form));
    REQUIRE(comes([&] { return isOn("opt(0)"); }));
    ServeAWhile();
    CHECK_FALSE(first.Value());
    CHECK_FALSE(second.Value());
    CHECK(SendMessageW(desk.Find(form, "opt(0)"), BM_GETCHECK, 0, 0) == BST_UNCHECKED);
}

TEST_CASE("what is typed reaches the text box, and the field shows what the box made of it") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& box = form.Add<toolkit::TextBox>("txt", toolkit::TextBoxStyle{.maxLength = 4});
    form.Load();
    const HWND window = desk.Find(form, "txt");
    const auto type = [&](wchar_t character) { SendMessageW(window, WM_CHAR, character, 0); };

    SUBCASE("letter by letter, up to the limit") {
        int changes = 0;
        box.onChange = [&] { ++changes; };
        for (const wchar_t character : {L'ä', L'b', L'c', L'd', L'e'}) type(character);
        CHECK(box.Text() == "äbcd");
        CHECK(changes == 4);
    }
    SUBCASE("an event that changes the text leaves the caret where it was") {
        box.onChange = [&] {
            if (box.Text() == "ax") box.SetText("ay");
        };
        for (const wchar_t character : {L'a', L'x', L'z'}) type(character);
        CHECK(TextOf(window) == "ayz");
        CHECK(box.Text() == "ayz");
    }
    SUBCASE("text set by the program is shown and raises one event") {
        int changes = 0;
        box.onChange = [&] { ++changes; };
        box.SetText("neu");
        CHECK(TextOf(window) == "neu");
        CHECK(changes == 1);
    }
}

TEST_CASE("a field without a limit takes a long text") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& box = form.Add<toolkit::TextBox>("txt");
    form.Load();
    const std::string longText(40000, 'x');
    SendMessageW(desk.Find(form, "txt"), EM_REPLACESEL, FALSE,
                 reinterpret_cast<LPARAM>(platform::win32::ToWide(longText).c_str()));
    CHECK(box.Text() == longText);
}

TEST_CASE("64 KiB of any characters go through a field of several lines unchanged") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& box = form.Add<toolkit::TextBox>("txt", toolkit::TextBoxStyle{.multiLine = true});
    form.SetLayout(Leaf(box));
    form.Show();
    std::string longText;
    while (longText.size() < 65536) longText += "Größe Ω Ж 漢 😀\r\n";
    const HWND window = desk.Find(form, "txt");
    SUBCASE("set by the program") {
        box.SetText(longText);
        CHECK(platform::win32::TextOf(window) == longText);
    }
    SUBCASE("pasted") {
        SendMessageW(window, EM_REPLACESEL, FALSE,
                     reinterpret_cast<LPARAM>(platform::win32::ToWide(longText).c_str()));
        CHECK(box.Text() == longText);
    }
}

TEST_CASE("the slider's thumb and its control go together") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& slider = form.Add<toolkit::Slider>("sld", toolkit::SliderRange{1, 400, 1, 5, 5}, 100);
    form.Load();
    const HWND window = desk.Find(form, "sld");
    CHECK(SendMessageW(window, TBM_GETPOS, 0, 0) == 100);
    SendMessageW(window, WM_KEYDOWN, VK_RIGHT, 0);
    CHECK(slider.Value() == 101);
    SendMessageW(window, WM_KEYDOWN, VK_NEXT, 0);
    CHECK(slider.Value() == 106);
    slider.SetValue(400);
    CHECK(SendMessageW(window, TBM_GETPOS, 0, 0) == 400);
}

TEST_CASE("all pages' controls exist from the start, and one page is visible") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& tabs = form.Add<toolkit::TabStrip>("SSTab1", std::vector<std::string>{"Eins", "Zwei"});
    auto& first = form.Add<toolkit::CheckBox>("chkOne", "eins");
    auto& second = form.Add<toolkit::CheckBox>("chkTwo", "zwei");
    form.SetLayout(Pages(tabs, {Leaf(first), Leaf(second)}));
    form.Show();
    CHECK(IsWindowVisible(desk.Find(form, "chkOne")));
    CHECK_FALSE(IsWindowVisible(desk.Find(form, "chkTwo")));

    SUBCASE("the program turns the page") {
        tabs.SetTab(1);
    }
    SUBCASE("the user turns the page") {
        SendMessageW(desk.Find(form, "SSTab1"), TCM_SETCURFOCUS, 1, 0);
        CHECK(tabs.Tab() == 1);
    }
    CHECK_FALSE(IsWindowVisible(desk.Find(form, "chkOne")));
    CHECK(IsWindowVisible(desk.Find(form, "chkTwo")));
    CHECK(SendMessageW(desk.Find(form, "SSTab1"), TCM_GETCURSEL, 0, 0) == 1);
}

TEST_CASE("a click on the tab that is open already is told too") {
    RealMouse mouse;
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& tabs = form.Add<toolkit::TabStrip>("SSTab1", std::vector<std::string>{"Eins", "Zwei"});
    auto& first = form.Add<toolkit::CheckBox>("chkOne", "eins");
    auto& second = form.Add<toolkit::CheckBox>("chkTwo", "zwei");
    form.SetLayout(Pages(tabs, {Leaf(first), Leaf(second)}));
    form.Show();
    ServeQueue();
    int clicks = 0;
    tabs.onClick = [&] { ++clicks; };
    RealMouse::MoveTo(desk.Find(form, "SSTab1"), 8, 8);
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    ServeUntil([&] { return clicks > 0; });
    CHECK(clicks == 1);
    CHECK(tabs.Tab() == 0);
}

TEST_CASE("a control that loses its use hands the focus on") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& first = form.Add<toolkit::TextBox>("txtOne");
    form.Add<toolkit::TextBox>("txtTwo");
    form.Show();
    SetFocus(desk.Find(form, "txtOne"));
    first.SetEnabled(false);
    CHECK(GetFocus() == desk.Find(form, "txtTwo"));
}

TEST_CASE("the only control hands the focus to the form when it loses its use") {
    Desk desk;
    TestForm form(desk.host, "frmAbout");
    form.Add<toolkit::Label>("lbl", "Text");
    auto& only = form.Add<PlainButton>("cmdOnly", "OK");
    form.Show();
    SetFocus(desk.Find(form, "cmdOnly"));
    const auto loseUse = [&] {
        SUBCASE("disabled") {
            only.SetEnabled(false);
        }
        SUBCASE("hidden") {
            only.SetVisible(false);
        }
    };
    SUBCASE("in a ring of the system's") {
        loseUse();
    }
    SUBCASE("in a ring that can only be entered from a control in use") {
        const support::StandInFunction watched(entryOfGetNextDlgTabItem, NextOfOneInUse);
        loseUse();
    }
    CHECK(GetFocus() == desk.host.WindowOf(form));
}

TEST_CASE("keys reach the form after its only control has disabled itself") {
    Desk desk;
    TestForm form(desk.host, "frmAbout");
    auto& only = form.Add<PlainButton>("cmdOK", "OK");
    only.onPress = [&] { only.SetEnabled(false); };
    form.keyDown = [&](int key) {
        if (key == VK_ESCAPE) form.Unload();
        return key == VK_ESCAPE;
    };
    form.Show();
    const HWND window = desk.host.WindowOf(form);
    SetForegroundWindow(window);
    SetFocus(desk.Find(form, "cmdOK"));
    SendMessageW(desk.Find(form, "cmdOK"), BM_CLICK, 0, 0);
    RealMouse::Press(VK_ESCAPE, true);
    RealMouse::Press(VK_ESCAPE, false);
    const DWORD start = GetTickCount();
    while (form.Loaded() && GetTickCount() - start < 3000) {
        desk.host.DoEvents();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    CHECK_FALSE(form.Loaded());
}

TEST_CASE("a path is shown in one line without access keys, and its window holds all of it") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    const std::string longPath = "C:\\Tom & Jerry\\" + std::string(300, 'x') + "\\Letzter";
    auto& path = form.Add<toolkit::Label>("lblPath", "", toolkit::LabelStyle::Path);
    auto& plain = form.Add<toolkit::Label>("lblPlain", "Text");
    form.SetLayout(toolkit::Column({Leaf(path), Leaf(plain)}));
    form.Show();
    path.SetCaption(longPath);
    const auto style = [&](const char* name) {
        return GetWindowLongW(desk.Find(form, name), GWL_STYLE) & (SS_ELLIPSISMASK | SS_NOPREFIX);
    };
    CHECK(style("lblPath") == (SS_PATHELLIPSIS | SS_NOPREFIX));
    CHECK(style("lblPlain") == 0);
    CHECK(platform::win32::TextOf(desk.Find(form, "lblPath")) == longPath);
}
