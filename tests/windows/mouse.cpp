// What the mouse does over labels, frames and the form, and the colour of labels.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "platform/win32/handle.h"
#include "runtime/failure.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

// A page with a frame, in it a label that listens and one that does not, and a label beside it.
struct MouseFixture {
    Desk desk;
    TestForm form{desk.host, "frmMain"};
    toolkit::TabStrip& tabs = form.Add<toolkit::TabStrip>("tabs", std::vector<std::string>{"Eins"});
    toolkit::Frame& frame = form.Add<toolkit::Frame>("fra", "Rahmen");
    toolkit::Label& link = form.Add<toolkit::Label>("lblLink", "Werkzeug");
    toolkit::Label& plain = form.Add<toolkit::Label>("lblPlain", "Text");
    toolkit::Label& outside = form.Add<toolkit::Label>("lblOutside", "Außen");
    std::vector<std::string> heard;

    MouseFixture() {
        const auto note = [this](const char* what) {
            return [this, what] { heard.push_back(what); };
        };
        link.onClick = note("click");
        link.onMouseMove = note("link");
        frame.onMouseMove = note("frame");
        form.mouseMoved = note("form");
        toolkit::Box inside = toolkit::Column({Leaf(link), Leaf(plain), toolkit::Space(100, 40)});
        form.SetLayout(Pages(
            tabs, {toolkit::Column({InFrame(frame, inside), Leaf(outside), toolkit::Filler()})}));
        form.Show();
    }

    HWND Window(const char* name) const { return desk.Find(form, name); }

    // The window that the system gives the mouse's messages at a place of that control.
    HWND HitAt(const char* name, int x, int y) const {
        POINT point{x, y};
        ClientToScreen(Window(name), &point);
        return WindowFromPoint(point);
    }

    void Move(HWND window) { SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(2, 2)); }
};

// The colours that a window's picture is made of, except its background.
bool HasColour(HWND window, COLORREF wanted) {
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    RECT area{};
    GetClientRect(window, &area);
    bool found = false;
    for (int y = 0; y < area.bottom; ++y) {
        for (int x = 0; x < area.right; ++x) found = found || GetPixel(dc, x, y) == wanted;
    }
    ReleaseDC(window, dc);
    return found;
}

}  // namespace

TEST_CASE("the mouse is heard by the label that listens, else by the frame or page behind it") {
    MouseFixture f;
    CHECK(f.HitAt("lblLink", 2, 2) == f.Window("lblLink"));
    CHECK(f.HitAt("lblPlain", 2, 2) == f.Window("fra"));
    CHECK(f.HitAt("fra", 30, 50) == f.Window("fra"));
    CHECK(f.HitAt("lblOutside", 2, 2) == GetParent(f.Window("fra")));
}

TEST_CASE("a move over the label, the frame, the page or the form reaches just that one") {
    MouseFixture f;
    f.Move(f.Window("lblLink"));
    CHECK(f.heard == std::vector<std::string>{"link"});
    f.Move(f.Window("fra"));
    CHECK(f.heard.back() == "frame");
    f.Move(GetParent(f.Window("fra")));
    CHECK(f.heard.back() == "form");
    f.Move(f.desk.host.WindowOf(f.form));
    CHECK(f.heard == std::vector<std::string>{"link", "frame", "form", "form"});
}

// A disabled control is passed over by the mouse, so its own tip can never be read.
TEST_CASE("a frame's tip is told to the mouse over a disabled control in it, not over others") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& frame = form.Add<toolkit::Frame>("fra", "Rahmen");
    auto& shut = form.Add<toolkit::CheckBox>("chkShut", "Gesperrt");
    auto& open = form.Add<toolkit::CheckBox>("chkOpen", "Offen");
    frame.SetToolTip("Fehlt der Treiber, ist der Kasten gesperrt.");
    shut.SetEnabled(false);
    form.SetLayout(InFrame(frame, toolkit::Column({Leaf(shut), Leaf(open)})));
    form.Show();
    RealMouse mouse;
    SetForegroundWindow(desk.host.WindowOf(form));
    const auto shown = [] {
        const HWND tip = FindWindowW(TOOLTIPS_CLASSW, nullptr);
        return tip && IsWindowVisible(tip) ? windows::TextOf(tip) : "";
    };
    const auto rest = [&](const char* name) {
        RealMouse::MoveTo(desk.Find(form, name), 4, 4);
        ServeQueue();
        RealMouse::MoveTo(desk.Find(form, name), 6, 5);
    };
    rest("chkShut");
    ServeUntil([&] { return shown() == frame.ToolTip(); });
    rest("chkOpen");
    ServeUntil([&] { return shown().empty(); });
    POINT inside{6, 5};
    ClientToScreen(desk.Find(form, "chkOpen"), &inside);
    CHECK(WindowFromPoint(inside) == desk.Find(form, "chkOpen"));
}

TEST_CASE("a frame to which nobody listens lets the mouse through to its page") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& frame = form.Add<toolkit::Frame>("fra", "Rahmen");
    form.SetLayout(InFrame(frame, toolkit::Space(100, 60)));
    form.Show();
    POINT point{20, 30};
    ClientToScreen(desk.Find(form, "fra"), &point);
    CHECK(WindowFromPoint(point) == desk.host.WindowOf(form));
}

TEST_CASE("a label is pressed by the mouse, by a script's click and by its notification") {
    MouseFixture f;
    const HWND label = f.Window("lblLink");
    SUBCASE("the mouse") {
        SendMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
        SendMessageW(label, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    }
    SUBCASE("the mouse, twice in a row, which is one click") {
        SendMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
        SendMessageW(label, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
        SendMessageW(label, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(2, 2));
        SendMessageW(label, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    }
    SUBCASE("a click") {
        SendMessageW(label, BM_CLICK, 0, 0);
    }
    SUBCASE("the notification") {
        const auto id = static_cast<WORD>(GetDlgCtrlID(label));
        SendMessageW(GetParent(label), WM_COMMAND, MAKEWPARAM(id, STN_CLICKED),
                     reinterpret_cast<LPARAM>(label));
    }
    CHECK(f.heard == std::vector<std::string>{"click"});
}

TEST_CASE("a press on a frame takes the focus from nobody") {
    MouseFixture f;
    const HWND before = GetFocus();
    SendMessageW(f.Window("fra"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 50));
    SendMessageW(f.Window("fra"), WM_LBUTTONUP, 0, MAKELPARAM(30, 50));
    CHECK(GetFocus() == before);
    CHECK(GetCapture() == nullptr);
    CHECK(f.heard.empty());
}

TEST_CASE("a label's click that fails ends in the default message") {
    MouseFixture f;
    f.link.onClick = [] { throw runtime::Failure(runtime::Overflow); };
    SendMessageW(f.Window("lblLink"), BM_CLICK, 0, 0);
    CHECK(f.desk.messages.texts.size() == 1);
}

TEST_CASE("a label's click may unload its form") {
    MouseFixture f;
    f.link.onClick = [&] { f.form.Unload(); };
    SUBCASE("by a script") {
        SendMessageW(f.Window("lblLink"), BM_CLICK, 0, 0);
    }
    SUBCASE("by the mouse") {
        SendMessageW(f.Window("lblLink"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    }
    CHECK_FALSE(f.form.Loaded());
}

TEST_CASE("a label is drawn in its colour, and in the system's before it has one") {
    MouseFixture f;
    const HWND label = f.Window("lblLink");
    CHECK_FALSE(HasColour(label, RGB(255, 0, 0)));
    CHECK(HasColour(label, GetSysColor(COLOR_WINDOWTEXT)));
    f.link.SetTextColour(toolkit::Red);
    CHECK(HasColour(label, RGB(255, 0, 0)));
    f.link.SetTextColour(toolkit::Black);
    CHECK_FALSE(HasColour(label, RGB(255, 0, 0)));
    CHECK(HasColour(label, RGB(0, 0, 0)));
}

namespace {

// Other colours of the system's, for as long as this lives.
struct DarkWindows {
    static constexpr int What[] = {COLOR_BTNFACE, COLOR_WINDOWTEXT};
    static constexpr COLORREF Dark[] = {RGB(0, 0, 0), RGB(255, 255, 255)};
    COLORREF before[2] = {GetSysColor(What[0]), GetSysColor(What[1])};

    DarkWindows() { SetSysColors(2, What, Dark); }
    ~DarkWindows() { SetSysColors(2, What, before); }
};

}  // namespace

TEST_CASE("a label's colour that cannot be read on dark windows gives way to the system's") {
    MouseFixture f;
    const HWND label = f.Window("lblLink");
    f.link.SetTextColour(toolkit::Black);
    const DarkWindows dark;
    CHECK(HasColour(label, RGB(255, 255, 255)));
    f.link.SetTextColour(toolkit::Red);
    CHECK(HasColour(label, RGB(255, 0, 0)));
    CHECK_FALSE(HasColour(label, RGB(255, 255, 255)));
}
