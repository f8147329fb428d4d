// The list box, the drive list and the progress bar.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "toolkit/drivelistbox.h"
#include "toolkit/listbox.h"
#include "toolkit/progressbar.h"
#include "windows/desk.h"

using namespace windows;

TEST_CASE("a list box shows its lines") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& list = form.Add<toolkit::ListBox>("List1");
    list.AddItem("vorher");
    form.SetLayout(Leaf(list));
    form.Show();
    const HWND window = desk.Find(form, "List1");
    list.AddItem("http://quillmore.example/ä");
    CHECK(SendMessageW(window, LB_GETCOUNT, 0, 0) == 2);
    wchar_t text[100] = L"";
    SendMessageW(window, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    CHECK(platform::win32::FromWide(text) == "http://quillmore.example/ä");
    list.Clear();
    CHECK(SendMessageW(window, LB_GETCOUNT, 0, 0) == 0);
    list.AddItem("nachher");
    CHECK(SendMessageW(window, LB_GETCOUNT, 0, 0) == 1);
}

TEST_CASE("a list box scrolls sideways as far as its widest line") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& list = form.Add<toolkit::ListBox>("List1");
    form.SetLayout(Leaf(list));
    form.Show();
    const HWND window = desk.Find(form, "List1");
    const auto scrolls = [&] { return (GetWindowLongW(window, GWL_STYLE) & WS_HSCROLL) != 0; };
    const auto extent = [&] { return SendMessageW(window, LB_GETHORIZONTALEXTENT, 0, 0); };
    list.AddItem("kurz");
    CHECK_FALSE(scrolls());
    const std::string wide = "http://quillmore.example/?a&b" + std::string(200, 'm');
    list.AddItem(wide);
    list.AddItem(std::string(150, 'i'));
    CHECK(scrolls());
    const HDC dc = GetDC(window);
    SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32A(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
    ReleaseDC(window, dc);
    CHECK(extent() >= size.cx);
    CHECK(extent() <= size.cx + 10);
    list.Clear();
    CHECK(extent() == 0);
    list.AddItem("kurz");
    CHECK_FALSE(scrolls());
}

TEST_CASE("a progress bar shows its range and value") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& bar = form.Add<toolkit::ProgressBar>("prgbarIE1");
    bar.SetMaximum(7);
    form.SetLayout(Leaf(bar));
    form.Show();
    const HWND window = desk.Find(form, "prgbarIE1");
    PBRANGE range{};
    SendMessageW(window, PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    CHECK(range.iLow == 0);
    CHECK(range.iHigh == 7);
    bar.SetValue(5);
    CHECK(SendMessageW(window, PBM_GETPOS, 0, 0) == 5);
    bar.SetMaximum(70000);
    bar.SetValue(66000);
    CHECK(SendMessageW(window, PBM_GETPOS, 0, 0) == 66000);
}

namespace {

struct Drives {
    Desk desk;
    TestForm form{desk.host, "frmMain"};
    toolkit::DriveListBox& drives = form.Add<toolkit::DriveListBox>("drvSelect");
    HWND window = nullptr;
    int changes = 0;
    int scrolls = 0;

    Drives() {
        drives.SetDrives({"a:", "c: [SYSTEM]", "d:"});
        drives.onChange = [this] { ++changes; };
        drives.onScroll = [this] { ++scrolls; };
        form.SetLayout(toolkit::Row({Leaf(drives)}));
        form.Show();
        window = desk.Find(form, "drvSelect");
    }

    HWND List() const {
        COMBOBOXINFO parts{};
        parts.cbSize = sizeof parts;
        GetComboBoxInfo(window, &parts);
        return parts.hwndList;
    }
};

}  // namespace

TEST_CASE("a drive list shows the drive that the program selects") {
    Drives f;
    f.drives.SetDrive("C:\\");
    CHECK(SendMessageW(f.window, CB_GETCURSEL, 0, 0) == 1);
    CHECK(TextOf(f.window) == "c: [SYSTEM]");
    CHECK(f.changes == 1);
}

TEST_CASE("the user's choice of a drive raises Change once") {
    Drives f;
    SendMessageW(f.window, WM_KEYDOWN, VK_DOWN, 0);
    CHECK(f.drives.Drive() == "a:");
    CHECK(f.changes == 1);
}

TEST_CASE("scrolling the dropped list of drives raises Scroll") {
    Drives f;
    SendMessageW(f.List(), WM_VSCROLL, SB_LINEDOWN, 0);
    CHECK(f.scrolls == 1);
    SendMessageW(f.List(), WM_MOUSEMOVE, 0, 0);
    CHECK(f.scrolls == 1);
    CHECK(f.changes == 0);
}

TEST_CASE("scrolling may unload the form of the drives") {
    Drives f;
    f.drives.onScroll = [&] { f.form.Unload(); };
    SendMessageW(f.List(), WM_VSCROLL, SB_LINEDOWN, 0);
    CHECK_FALSE(f.form.Loaded());
}
