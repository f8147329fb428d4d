#include <doctest/doctest.h>

#include "platform/win32/display.h"
#include "platform/win32/handle.h"
#include "windows/desk.h"

using namespace windows;

namespace {

RECT PlaceOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area;
}

struct MainWindow : Desk {
    TestForm form{host, "frmMain"};

    MainWindow() { form.isDialog = false; }
    HWND Window() const { return host.WindowOf(form); }
};

}  // namespace

TEST_CASE("a form has its window from Load to Unload, and is listed in that time") {
    Desk desk;
    TestForm first(desk.host, "frmMain");
    TestForm second(desk.host, "frmAbout");
    CHECK(desk.host.WindowOf(first) == nullptr);
    first.Load();
    second.Load();
    CHECK(desk.host.OpenForms() == std::vector<toolkit::Form*>{&first, &second});
    CHECK_FALSE(IsWindowVisible(desk.host.WindowOf(first)));
    first.Unload();
    CHECK(desk.host.WindowOf(first) == nullptr);
    CHECK(desk.host.OpenForms() == std::vector<toolkit::Form*>{&second});
}

TEST_CASE("twips become pixels of the screen") {
    MainWindow desk;
    desk.form.Show();
    const HDC screen = GetDC(nullptr);
    const int perInch = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    const RECT area = PlaceOf(desk.Window());
    CHECK(area.left == MulDiv(1500, perInch, 1440));
    CHECK(area.right - area.left == MulDiv(6000, perInch, 1440));
    CHECK(area.bottom - area.top == MulDiv(4500, perInch, 1440));
}

TEST_CASE(
    "a place that the program sets keeps its exact twips, one that the user chooses is told") {
    MainWindow desk;
    desk.form.SetLeft(1);
    desk.form.Show();
    CHECK(desk.form.Place().left == 1.0F);
    SetWindowPos(desk.Window(), nullptr, 60, 90, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CHECK(PlaceOf(desk.Window()).left == 60);
    CHECK(desk.form.Place().left > 1.0F);
    CHECK(desk.form.Place().width == 6000.0F);
}

TEST_CASE("a form that snaps back from Resize keeps its size") {
    MainWindow desk;
    desk.form.Show();
    const RECT before = PlaceOf(desk.Window());
    desk.form.resized = [&] {
        if (desk.form.State() == toolkit::WindowState::Normal) desk.form.SetSize(6000, 4500);
    };
    SetWindowPos(desk.Window(), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    const RECT after = PlaceOf(desk.Window());
    CHECK(after.right - after.left == before.right - before.left);
    CHECK(after.bottom - after.top == before.bottom - before.top);
}

TEST_CASE("the user's minimising and restoring is told, and the place is kept over it") {
    MainWindow desk;
    desk.form.Show();
    const toolkit::Bounds place = desk.form.Place();
    std::vector<toolkit::WindowState> states;
    desk.form.resized = [&] { states.push_back(desk.form.State()); };
    ShowWindow(desk.Window(), SW_MINIMIZE);
    CHECK(desk.form.Place() == place);
    ShowWindow(desk.Window(), SW_RESTORE);
    CHECK(states == std::vector{toolkit::WindowState::Minimised, toolkit::WindowState::Normal});
    CHECK(desk.form.Place() == place);
}

TEST_CASE("a state set before the first Show is the one in which the window appears") {
    MainWindow desk;
    desk.form.Load();
    SUBCASE("maximised") {
        desk.form.SetState(toolkit::WindowState::Maximised);
        CHECK_FALSE(IsWindowVisible(desk.Window()));
        desk.form.Show();
        CHECK(IsZoomed(desk.Window()));
    }
    SUBCASE("minimised") {
        desk.form.SetState(toolkit::WindowState::Minimised);
        desk.form.Show();
        CHECK(IsIconic(desk.Window()));
    }
}

TEST_CASE("a form hidden while minimised comes back in its normal state") {
    MainWindow desk;
    desk.form.Show();
    desk.form.resized = [&] {
        if (desk.form.State() != toolkit::WindowState::Minimised) return;
        desk.form.SetInTaskbar(false);
        desk.form.Hide();
    };
    ShowWindow(desk.Window(), SW_MINIMIZE);
    CHECK_FALSE(IsWindowVisible(desk.Window()));
    desk.form.SetState(toolkit::WindowState::Normal);
    desk.form.Show();
    CHECK(IsWindowVisible(desk.Window()));
    CHECK_FALSE(IsIconic(desk.Window()));
}

TEST_CASE("the main window has a taskbar entry while nobody owns it") {
    MainWindow desk;
    desk.form.Show();
    CHECK(GetWindow(desk.Window(), GW_OWNER) == nullptr);
    desk.form.SetInTaskbar(false);
    CHECK(GetWindow(desk.Window(), GW_OWNER) != nullptr);
    CHECK(IsWindowVisible(desk.Window()));
    desk.form.SetInTaskbar(true);
    CHECK(GetWindow(desk.Window(), GW_OWNER) == nullptr);
}

TEST_CASE("a dialog over a hidden window has a taskbar entry of its own") {
    Desk desk;
    TestForm main(desk.host, "frmMain");
    main.isDialog = false;
    main.Load();
    TestForm first(desk.host, "frmFirst");
    first.Load();
    main.Show();
    TestForm second(desk.host, "frmSecond");
    second.Load();
    const auto isInTaskbar = [&](const toolkit::Form& form) {
        const HWND window = desk.host.WindowOf(form);
        return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_APPWINDOW) != 0;
    };
    CHECK(isInTaskbar(first));
    CHECK_FALSE(isInTaskbar(second));
    CHECK_FALSE(isInTaskbar(main));
}

TEST_CASE("closing by the close box or by the session's end unloads the form") {
    MainWindow desk;
    desk.form.Show();
    SUBCASE("the close box") {
        SendMessageW(desk.Window(), WM_CLOSE, 0, 0);
        CHECK_FALSE(desk.form.Loaded());
    }
    SUBCASE("the session's end") {
        CHECK(SendMessageW(desk.Window(), WM_QUERYENDSESSION, 0, 0) != 0);
        CHECK(desk.form.Loaded());
        SendMessageW(desk.Window(), WM_ENDSESSION, TRUE, 0);
        CHECK_FALSE(desk.form.Loaded());
    }
    SUBCASE("a session's end that another program has refused") {
        SendMessageW(desk.Window(), WM_ENDSESSION, FALSE, 0);
        CHECK(desk.form.Loaded());
    }
}

TEST_CASE("the form gets each key first") {
    MainWindow desk;
    desk.form.Add<toolkit::TextBox>("txt");
    desk.form.keyDown = [&](int key) {
        if (key == VK_F4) desk.form.Unload();
        return key == VK_F4;
    };
    desk.form.Show();
    PostMessageW(desk.Find(desk.form, "txt"), WM_KEYDOWN, VK_F4, 0);
    desk.host.Run();
    CHECK_FALSE(desk.form.Loaded());
}

TEST_CASE("a path is shortened for the width of the form's own texts") {
    Desk desk;
    TestForm form(desk.host, "frm");
    form.Add<toolkit::Label>("lbl", "Text");
    form.SetLayout(Leaf(*form.FindControl("lbl")));
    form.Show();
    const LRESULT font = SendMessageW(desk.Find(form, "lbl"), WM_GETFONT, 0, 0);
    CHECK(font != 0);
    CHECK(SendMessageW(desk.host.WindowOf(form), WM_GETFONT, 0, 0) == font);
    const std::string path = "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\Brief.doc";
    // What stands behind the NUL is what is left of the whole path.
    const std::string shortened =
        platform::win32::Display(desk.host).CompactPath(form, path, 300).c_str();
    CAPTURE(shortened);
    CHECK(shortened.ends_with("...\\Brief.doc"));
    const HDC context = GetDC(nullptr);
    SelectObject(context, reinterpret_cast<HGDIOBJ>(font));
    SIZE size{};
    GetTextExtentPoint32A(context, shortened.c_str(), static_cast<int>(shortened.size()), &size);
    ReleaseDC(nullptr, context);
    // As much of the path as there is room for, and no more.
    CHECK(size.cx <= 300);
    CHECK(size.cx > 270);
}

TEST_CASE("the hourglass covers the whole form until it is taken away") {
    MainWindow desk;
    desk.form.Show();
    const auto pointer = [&] {
        SendMessageW(desk.Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(desk.Window()),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    desk.form.SetPointer(toolkit::Hourglass);
    CHECK(GetCursor() == LoadCursorW(nullptr, IDC_WAIT));
    CHECK(pointer() == LoadCursorW(nullptr, IDC_WAIT));
    desk.form.SetPointer(toolkit::DefaultPointer);
    CHECK(pointer() == LoadCursorW(nullptr, IDC_ARROW));
}

TEST_CASE("the screen's hourglass covers every form with what is on it, and uncovers their own") {
    MainWindow desk;
    desk.form.Add<toolkit::TextBox>("txt", toolkit::TextBoxStyle{});
    desk.form.Add<PlainButton>("cmd", "OK");
    desk.form.Show();
    TestForm dialog(desk.host, "frmPassword");
    dialog.Load();
    const HCURSOR busy = LoadCursorW(nullptr, IDC_WAIT);
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    const auto over = [](HWND window, int place = HTCLIENT, UINT message = WM_MOUSEMOVE) {
        SetCursor(nullptr);
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                     MAKELPARAM(place, message));
        return GetCursor();
    };
    desk.host.SetScreenPointer(toolkit::Hourglass);
    CHECK(GetCursor() == busy);
    CHECK(over(desk.Window()) == busy);
    CHECK(over(desk.Find(desk.form, "txt")) == busy);
    CHECK(over(desk.Find(desk.form, "cmd")) == busy);
    CHECK(over(desk.host.WindowOf(dialog)) == busy);
    // A window behind a dialog, where a press is the system's to answer.
    CHECK(over(desk.Window(), HTERROR) == busy);
    CHECK(over(desk.Window(), HTERROR, WM_LBUTTONDOWN) == arrow);
    CHECK(over(desk.Window(), HTCAPTION) == arrow);
    desk.form.SetPointer(toolkit::Hourglass);
    desk.host.SetScreenPointer(toolkit::DefaultPointer);
    CHECK(GetCursor() == arrow);
    CHECK(over(desk.Window()) == busy);
    CHECK(over(desk.Find(desk.form, "cmd")) == busy);
    CHECK(over(desk.host.WindowOf(dialog)) == arrow);
    desk.form.SetPointer(toolkit::DefaultPointer);
    CHECK(over(desk.Window()) == arrow);
    CHECK(over(desk.Find(desk.form, "txt")) == LoadCursorW(nullptr, IDC_IBEAM));
    CHECK(over(desk.Find(desk.form, "cmd")) == arrow);
}

TEST_CASE("a form behind a box is shown behind it, and the box keeps the keyboard") {
    MainWindow desk;
    desk.form.Load();
    const platform::win32::WindowHandle box(CreateWindowExW(0, L"STATIC", L"Frage",
                                                            WS_POPUP | WS_VISIBLE, 0, 0, 200, 100,
                                                            nullptr, nullptr, nullptr, nullptr));
    SetForegroundWindow(box.Get());
    EnableWindow(desk.Window(), FALSE);
    desk.form.Show();
    CHECK(IsWindowVisible(desk.Window()));
    CHECK(GetForegroundWindow() == box.Get());
    HWND below = box.Get();
    while (below && below != desk.Window()) below = GetWindow(below, GW_HWNDNEXT);
    CHECK(below == desk.Window());
}

TEST_CASE("the window that owns one without a taskbar entry cannot be closed from outside") {
    MainWindow desk;
    desk.form.Show();
    desk.form.SetInTaskbar(false);
    const HWND owner = GetWindow(desk.Window(), GW_OWNER);
    REQUIRE(owner != nullptr);
    SendMessageW(owner, WM_CLOSE, 0, 0);
    SendMessageW(owner, WM_SYSCOMMAND, SC_CLOSE, 0);
    CHECK(IsWindow(owner));
    CHECK(desk.form.Loaded());
    CHECK(IsWindow(desk.Window()));
}
