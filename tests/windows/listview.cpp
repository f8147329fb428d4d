// What a list view shows, and what it costs.
#include <doctest/doctest.h>

#include <algorithm>

#include "windows/listfixture.h"

using namespace windows;
using toolkit::ListView;

namespace {

using Headers = std::vector<std::string>;

Headers HeadersOf(const ListFixture& f) {
    Headers headers;
    for (int column = 0; column < 3; ++column) {
        wchar_t text[100] = L"";
        LVCOLUMNW facts{};
        facts.mask = LVCF_TEXT;
        facts.pszText = text;
        facts.cchTextMax = 100;
        f.Send(LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&facts));
        headers.push_back(platform::win32::FromWide(text));
    }
    return headers;
}

bool NeedsPaint(HWND window) {
    return GetUpdateRect(window, nullptr, FALSE);
}

// Milliseconds that the statement takes.
template <typename Statement>
DWORD Took(Statement&& statement) {
    const DWORD before = GetTickCount();
    statement();
    return GetTickCount() - before;
}

}  // namespace

TEST_CASE("a list view shows headers, texts and sub-items of its rows") {
    ListFixture f;
    f.Fill(2);
    f.list.SetText(1, 1, "4096");
    f.list.SetText(1, 2, "Übersicht");
    CHECK(HeadersOf(f) == Headers{"Name", "Größe (bytes)", "Typ"});
    CHECK(f.Send(LVM_GETITEMCOUNT) == 2);
    CHECK(f.Shown(0, 0) == "Datei 0");
    CHECK(f.Shown(0, 1).empty());
    CHECK(f.Shown(1, 1) == "4096");
    CHECK(f.Shown(1, 2) == "Übersicht");
    wchar_t windowClass[50] = L"";
    GetClassNameW(f.window, windowClass, 50);
    CHECK(std::wstring(windowClass) == WC_LISTVIEWW);
}

TEST_CASE("a text longer than a path is shown as a whole") {
    ListFixture f;
    const std::string text = std::string(1500, 'x') + "Ende";
    f.list.AddRow(text);
    CHECK(f.Shown(0, 0) == text);
}

TEST_CASE("rows and columns of a list that was filled before its window are shown") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& list = form.Add<ListView>("lvwFiles");
    list.AddColumn("Name");
    list.AddRow("a");
    list.AddRow("b");
    list.SetSelected(1, true);
    form.SetLayout(Leaf(list));
    form.Show();
    const HWND window = desk.Find(form, "lvwFiles");
    CHECK(SendMessageW(window, LVM_GETITEMCOUNT, 0, 0) == 2);
    CHECK(SendMessageW(window, LVM_GETITEMSTATE, 1, LVIS_SELECTED) == LVIS_SELECTED);
}

TEST_CASE("a fresh column has room for its header, and is as wide as others where that is short") {
    ListFixture f;
    f.list.AddColumn("Zuletzt geändert, und das ist lang");
    const auto width = [&](WPARAM column) { return f.Send(LVM_GETCOLUMNWIDTH, column); };
    const LRESULT text = f.Send(LVM_GETSTRINGWIDTHW, 0,
                                reinterpret_cast<LPARAM>(L"Zuletzt geändert, und das ist lang"));
    CHECK(width(0) == width(2));
    CHECK(width(3) > width(0));
    // The header draws its text with an edge on both sides.
    CHECK(width(3) >= text + 12);
}

TEST_CASE("the window follows removing, clearing, ticking and selecting") {
    ListFixture f;
    f.Fill(3);
    f.list.SetTicked(2, true);
    CHECK_FALSE(f.ShownTicked(1));
    CHECK(f.ShownTicked(2));
    f.list.SetSelected(2, true);
    CHECK(f.ShownSelected(2));
    f.list.RemoveRow(0);
    CHECK(f.Send(LVM_GETITEMCOUNT) == 2);
    CHECK(f.Shown(0, 0) == "Datei 1");
    CHECK(f.ShownTicked(1));
    CHECK(f.ShownSelected(1));
    f.list.Clear();
    CHECK(f.Send(LVM_GETITEMCOUNT) == 0);
    f.list.AddRow("neu");
    CHECK_FALSE(f.ShownSelected(0));
    CHECK_FALSE(f.ShownTicked(0));
}

TEST_CASE("sorting takes the shown selection along") {
    ListFixture f(toolkit::ListViewStyle{.multiSelect = true});
    for (const char* name : {"b", "c", "a"}) f.list.AddRow(name);
    f.list.SetSelected(1, true);
    f.list.SetSelected(2, true);
    f.list.SetSorted(true);
    CHECK(f.Shown(0, 0) == "a");
    CHECK(f.ShownSelected(0));
    CHECK_FALSE(f.ShownSelected(1));
    CHECK(f.ShownSelected(2));
    CHECK(f.Send(LVM_GETSELECTEDCOUNT) == 2);
}

TEST_CASE("texts stand in the order of the user's language") {
    ListFixture f;
    for (const char* name :
         {"Zebra", "OASE", "ähre", "Apfel", "Oase", "öl", "10", "9", "z_", "C:\\a"}) {
        f.list.AddRow(name);
    }
    f.list.SetSorted(true);
    Headers order;
    for (int row = 0; row < f.list.Count(); ++row) order.push_back(f.list.Text(row));
    CHECK(order ==
          Headers{"10", "9", "ähre", "Apfel", "C:\\a", "OASE", "Oase", "öl", "z_", "Zebra"});
}

TEST_CASE("a locked list is not painted, whatever happens to its rows") {
    ListFixture f;
    ServeQueue();
    REQUIRE_FALSE(NeedsPaint(f.window));
    f.list.LockWindow();
    f.Fill(100);
    f.list.SetTicked(5, true);
    CHECK_FALSE(NeedsPaint(f.window));
    CHECK(f.Send(LVM_GETITEMCOUNT) == 100);
    CHECK_FALSE(NeedsPaint(f.window));
    f.list.UnlockWindow();
    CHECK(NeedsPaint(f.window));
    ServeQueue();
    f.list.AddRow("neu");
    CHECK(NeedsPaint(f.window));
}

TEST_CASE("a locked list that shrinks answers for rows that have gone") {
    ListFixture f;
    f.Fill(50);
    ServeQueue();
    f.list.LockWindow();
    f.list.Clear();
    RedrawWindow(f.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    f.list.UnlockWindow();
    CHECK(f.desk.messages.texts.empty());
    CHECK(f.Send(LVM_GETITEMCOUNT) == 0);
}

TEST_CASE("a list that dies locked leaves the screen unlocked") {
    ListFixture f;
    f.list.LockWindow();
    f.form.Unload();
    CHECK(LockWindowUpdate(GetDesktopWindow()));
    LockWindowUpdate(nullptr);
}

TEST_CASE("a column is fitted to its widest text, also where that is out of sight") {
    ListFixture f;
    f.Fill(500);
    const std::string widest(90, 'W');
    f.list.SetText(400, 1, widest);
    const auto width = [&](int column) {
        return f.Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column));
    };
    const auto textWidth = [&](const std::string& text) {
        return f.Send(LVM_GETSTRINGWIDTHW, 0,
                      reinterpret_cast<LPARAM>(platform::win32::ToWide(text).c_str()));
    };
    CHECK(width(1) == 96);
    f.list.FitColumn(1, false);
    CHECK(width(1) >= textWidth(widest));
    CHECK(width(1) < textWidth(widest) + 60);
    f.list.SetText(400, 1, "");
    f.list.FitColumn(1, false);
    CHECK(width(1) < textWidth("Größe (bytes)"));
    f.list.FitColumn(1, true);
    CHECK(width(1) >= textWidth("Größe (bytes)") + 18);
    CHECK(f.Shown(400, 0) == "Datei 400");
}

namespace {

// Looks at the first row's text while a column is being fitted, as a control does that only looks
// at the rows in sight.
struct Looker {
    static inline WNDPROC behind = nullptr;
    static inline std::string seen;

    static LRESULT CALLBACK Look(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == LVM_SETCOLUMNWIDTH && lParam == LVSCW_AUTOSIZE) {
            wchar_t text[100] = L"";
            LVITEMW item{};
            item.pszText = text;
            item.cchTextMax = 100;
            CallWindowProcW(behind, window, LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&item));
            seen = platform::win32::FromWide(text);
        }
        return CallWindowProcW(behind, window, message, wParam, lParam);
    }
};

}  // namespace

TEST_CASE("while a column is fitted each row in sight has its widest text") {
    ListFixture f;
    f.Fill(500);
    f.list.SetText(400, 0, "Die allerbreiteste Datei");
    const LONG_PTR before =
        SetWindowLongPtrW(f.window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Looker::Look));
    Looker::behind = reinterpret_cast<WNDPROC>(before);
    f.list.FitColumn(0, false);
    SetWindowLongPtrW(f.window, GWLP_WNDPROC, before);
    CHECK(Looker::seen == "Die allerbreiteste Datei");
    CHECK(f.Shown(0, 0) == "Datei 0");
}

TEST_CASE("a row can be scrolled into sight") {
    ListFixture f;
    f.Fill(1000);
    REQUIRE_FALSE(f.Send(LVM_ISITEMVISIBLE, 900));
    f.list.EnsureVisible(900);
    const auto top = f.Send(LVM_GETTOPINDEX);
    CHECK(top > 800);
    CHECK(top <= 900);
}

TEST_CASE(
    "20,000 rows are filled, ticked, fitted, sorted and removed one by one in seconds, not "
    "minutes") {
    ListFixture f;
    const DWORD filled = Took([&] {
        for (int row = 0; row < 20000; ++row) {
            const int at =
                f.list.AddRow("C:\\Dokumente\\Datei " + std::to_string(row * 7919 % 20000));
            f.list.SetText(at, 1, std::to_string(row));
            f.list.SetText(at, 2, "Textdokument");
            f.list.SetTicked(at, true);
        }
        ServeQueue();
    });
    CHECK(f.Send(LVM_GETITEMCOUNT) == 20000);
    const DWORD fitted = Took([&] {
        for (int column = 0; column < 3; ++column) f.list.FitColumn(column, true);
    });
    const DWORD sorted = Took([&] {
        f.list.SetSortOrder(ListView::Descending);
        f.list.SetSorted(true);
        ServeQueue();
    });
    CHECK(f.Shown(0, 0) == "C:\\Dokumente\\Datei 9999");
    const DWORD removed = Took([&] {
        for (int row = 0; row < 20000; ++row) f.list.RemoveRow(0);
        ServeQueue();
    });
    CHECK(f.Send(LVM_GETITEMCOUNT) == 0);
    MESSAGE("fill ", filled, " ms, fit ", fitted, " ms, sort ", sorted, " ms, remove ", removed,
            " ms");
    CHECK(std::max({filled, fitted, sorted, removed}) < 20000);
}
