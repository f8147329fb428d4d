// Labels that the keyboard reaches, and pages that it turns.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "platform/win32/handle.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

// The key that is to come up last; 0 when it has.
WPARAM released = 0;

LRESULT CALLBACK NoteRelease(int code, WPARAM wParam, LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    const bool isRelease = message->message == WM_KEYUP || message->message == WM_SYSKEYUP;
    if (code == HC_ACTION && wParam == PM_REMOVE && isRelease && message->wParam == released) {
        released = 0;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A page of a box, two links and a box in a frame; a page with a box; one with nothing for the
// keyboard.
struct LinkPages {
    Desk desk;
    TestForm form{desk.host, "frmMain"};
    toolkit::TabStrip& tabs =
        form.Add<toolkit::TabStrip>("tabs", std::vector<std::string>{"Eins", "Zwei", "Drei"});
    toolkit::CheckBox& before = form.Add<toolkit::CheckBox>("chkBefore", "Davor");
    toolkit::Label& first =
        form.Add<toolkit::Label>("lblFirst", "Werkzeug", toolkit::LabelStyle::Link);
    toolkit::Label& second =
        form.Add<toolkit::Label>("lblSecond", "Zweites", toolkit::LabelStyle::Link);
    toolkit::Frame& frame = form.Add<toolkit::Frame>("fra", "Rahmen");
    toolkit::CheckBox& after = form.Add<toolkit::CheckBox>("chkAfter", "Danach");
    toolkit::CheckBox& other = form.Add<toolkit::CheckBox>("chkOther", "Anderes");
    toolkit::Label& text = form.Add<toolkit::Label>("lblText", "Text");
    PlainButton& outside = form.Add<PlainButton>("cmdOutside", "Knopf");
    std::vector<std::string> heard;

    LinkPages() {
        first.onClick = [this] { heard.emplace_back("first"); };
        second.onClick = [this] { heard.emplace_back("second"); };
        tabs.onClick = [this] { heard.emplace_back("page"); };
        toolkit::Box links =
            toolkit::Column({Leaf(before), Leaf(first), Leaf(second), InFrame(frame, Leaf(after))});
        form.SetLayout(toolkit::Column(
            {toolkit::Pages(tabs, {links, Leaf(other), Leaf(text)}), Leaf(outside)}));
        form.Show();
        SetForegroundWindow(desk.host.WindowOf(form));
    }

    HWND Window(const char* name) const { return desk.Find(form, name); }
    void Focus(const char* name) const { SetFocus(Window(name)); }
    // A key from the keyboard itself, while others are held, served as the program serves it.
    void Press(WORD key, std::initializer_list<WORD> held = {}) {
        for (const WORD other : held) RealMouse::Press(other, true);
        RealMouse::Press(key, true);
        RealMouse::Press(key, false);
        for (const WORD other : held) RealMouse::Press(other, false);
        released = held.size() > 0 ? *(held.end() - 1) : key;
        const HHOOK hook =
            SetWindowsHookExW(WH_GETMESSAGE, NoteRelease, nullptr, GetCurrentThreadId());
        const DWORD start = GetTickCount();
        while (released && form.Loaded() && GetTickCount() - start < 5000) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
            desk.host.DoEvents();
        }
        UnhookWindowsHookEx(hook);
        // A form that has gone hears of no release.
        CHECK((released == 0 || !form.Loaded()));
    }
    std::string Focused() const { return NameOf(GetFocus()); }
};

using Words = std::vector<std::string>;

// The window's own picture, row by row.
std::vector<COLORREF> PictureOf(HWND window) {
    UpdateWindow(window);
    RECT area{};
    GetClientRect(window, &area);
    const HDC dc = GetDC(window);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < area.bottom; ++y) {
        for (int x = 0; x < area.right; ++x) pixels.push_back(GetPixel(dc, x, y));
    }
    ReleaseDC(window, dc);
    return pixels;
}

}  // namespace

TEST_CASE_FIXTURE(LinkPages, "the tabulator reaches the first of the links and then what follows") {
    Focus("chkBefore");
    Press(VK_TAB);
    CHECK(Focused() == "lblFirst");
    Press(VK_TAB);
    CHECK(Focused() == "chkAfter");
    Press(VK_TAB, {VK_SHIFT});
    CHECK(Focused() == "lblFirst");
    Press(VK_TAB, {VK_SHIFT});
    CHECK(Focused() == "chkBefore");
}

TEST_CASE_FIXTURE(LinkPages, "the arrow keys walk through the links and stay among them") {
    Focus("lblFirst");
    Press(VK_DOWN);
    CHECK(Focused() == "lblSecond");
    Press(VK_RIGHT);
    CHECK(Focused() == "lblFirst");
    Press(VK_UP);
    CHECK(Focused() == "lblSecond");
    Press(VK_LEFT);
    CHECK(Focused() == "lblFirst");
    CHECK(heard.empty());
}

TEST_CASE("the arrow keys lead from one check box to the next, the way they point") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    toolkit::Box column = toolkit::Column({});
    for (const char* name : {"chkOne", "chkTwo", "chkThree"}) {
        column.children.push_back(Leaf(form.Add<toolkit::CheckBox>(name, name)));
    }
    form.SetLayout(column);
    form.Show();
    const auto press = [&](WPARAM key) {
        PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
        desk.host.DoEvents();
        return NameOf(GetFocus());
    };
    SetFocus(desk.Find(form, "chkTwo"));
    CHECK(press(VK_DOWN) == "chkThree");
    CHECK(press(VK_UP) == "chkTwo");
    CHECK(press(VK_LEFT) == "chkOne");
    CHECK(press(VK_RIGHT) == "chkTwo");
}

TEST_CASE_FIXTURE(LinkPages, "Space and Return click the link that has the focus, and no other") {
    form.defaultButton = &outside;
    Focus("lblSecond");
    SUBCASE("Space") {
        Press(VK_SPACE);
    }
    SUBCASE("Return") {
        Press(VK_RETURN);
    }
    CHECK(heard == Words{"second"});
    CHECK(outside.presses == 0);
    CHECK(Focused() == "lblSecond");
}

TEST_CASE_FIXTURE(LinkPages, "a key that is held clicks a link once") {
    Focus("lblFirst");
    for (int i = 0; i < 3; ++i) {
        const LPARAM again = i > 0 ? static_cast<LPARAM>(1u << 30) : 0;
        SendMessageW(Window("lblFirst"), WM_KEYDOWN, VK_SPACE, again | 1);
    }
    CHECK(heard == Words{"first"});
}

TEST_CASE_FIXTURE(LinkPages, "a link may unload its form by the keyboard") {
    first.onClick = [this] { form.Unload(); };
    Focus("lblFirst");
    Press(VK_SPACE);
    CHECK_FALSE(form.Loaded());
}

TEST_CASE_FIXTURE(
    LinkPages, "a link wears a rectangle as long as it has the focus, and the mouse gives none") {
    const HWND link = Window("lblFirst");
    const auto bare = PictureOf(link);
    SendMessageW(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    SendMessageW(link, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    CHECK(heard == Words{"first"});
    CHECK(PictureOf(link) == bare);
    Focus("lblFirst");
    const auto framed = PictureOf(link);
    CHECK(framed != bare);
    RECT part{0, 0, 5, 5};
    InvalidateRect(link, &part, TRUE);
    CHECK(PictureOf(link) == framed);
    Focus("chkAfter");
    CHECK(PictureOf(link) == bare);
}

TEST_CASE_FIXTURE(LinkPages, "a link that had the focus has it again when its window comes back") {
    Focus("lblSecond");
    TestForm dialog(desk.host, "frmDialog");
    dialog.Add<toolkit::TextBox>("txtDialog");
    dialog.Show();
    REQUIRE(Focused() == "txtDialog");
    dialog.Unload();
    SetActiveWindow(desk.host.WindowOf(form));
    CHECK(Focused() == "lblSecond");
}

TEST_CASE_FIXTURE(LinkPages,
                  "Strg+Tab turns to the next page and begins there, as a click would tell it") {
    Focus("chkAfter");
    Press(VK_TAB, {VK_CONTROL});
    CHECK(tabs.Tab() == 1);
    CHECK(IsWindowVisible(Window("chkOther")));
    CHECK_FALSE(IsWindowVisible(Window("chkAfter")));
    CHECK(Focused() == "chkOther");
    CHECK(heard == Words{"page"});
}

TEST_CASE_FIXTURE(LinkPages,
                  "Strg+Umschalt+Tab turns back, and after the last page comes the first") {
    Focus("chkBefore");
    Press(VK_TAB, {VK_CONTROL, VK_SHIFT});
    CHECK(tabs.Tab() == 2);
    CHECK(Focused() == "tabs");
    Press(VK_TAB, {VK_CONTROL});
    CHECK(tabs.Tab() == 0);
    CHECK(heard == Words{"page", "page"});
}

TEST_CASE_FIXTURE(LinkPages,
                  "a page turned by the mouse or the program takes no focus along that is hidden") {
    Focus("chkBefore");
    SUBCASE("the mouse") {
        RECT tab{};
        SendMessageW(Window("tabs"), TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&tab));
        const LPARAM middle = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
        SendMessageW(Window("tabs"), WM_LBUTTONDOWN, MK_LBUTTON, middle);
        SendMessageW(Window("tabs"), WM_LBUTTONUP, 0, middle);
    }
    SUBCASE("the program") {
        tabs.SetTab(1);
    }
    CHECK(tabs.Tab() == 1);
    CHECK(Focused() == "tabs");
    Press(VK_SPACE);
    CHECK(before.Value() == 0);
}

TEST_CASE_FIXTURE(LinkPages, "turning the page leaves the focus on what stands outside the pages") {
    for (const char* name : {"tabs", "cmdOutside"}) {
        Focus(name);
        Press(VK_TAB, {VK_CONTROL});
        CHECK(Focused() == name);
    }
    CHECK(tabs.Tab() == 2);
}

TEST_CASE_FIXTURE(LinkPages, "a strip that is disabled is not turned") {
    Focus("chkBefore");
    tabs.SetEnabled(false);
    Press(VK_TAB, {VK_CONTROL});
    CHECK(tabs.Tab() == 0);
    CHECK(Focused() == "chkBefore");
}

TEST_CASE_FIXTURE(LinkPages, "an event of the turning may unload the form") {
    tabs.onClick = [this] { form.Unload(); };
    Focus("chkBefore");
    Press(VK_TAB, {VK_CONTROL});
    CHECK_FALSE(form.Loaded());
}
