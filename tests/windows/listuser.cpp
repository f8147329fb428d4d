// What the user does with a list view, and scripts in the user's place.
#include <doctest/doctest.h>

#include "platform/win32/handle.h"
#include "runtime/failure.h"
#include "windows/listfixture.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

struct Heard : ListFixture {
    explicit Heard(toolkit::ListViewStyle style = {.checkBoxes = true}) : ListFixture(style) {
        list.onClick = [this] { Note("click " + std::to_string(list.SelectedRow())); };
        list.onDoubleClick = [this] { Note("twice " + std::to_string(list.SelectedRow())); };
        list.onRightButton = [this] { Note("right " + std::to_string(list.SelectedRow())); };
        list.onColumnClick = [this](int column) { Note("column " + std::to_string(column)); };
        list.onKeyDown = [this](int key) { Note("key " + std::to_string(key)); };
        Fill(3);
        ServeQueue();
        SetFocus(window);
    }

    void Note(std::string what) { heard.push_back(std::move(what)); }

    void Press(WPARAM key) const {
        Send(WM_KEYDOWN, key);
        Send(WM_KEYUP, key);
    }

    std::vector<std::string> heard;
};

// A script's way to a state of a row, or of all.
void SetState(const ListFixture& f, int row, UINT state, UINT mask) {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    f.Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

using Events = std::vector<std::string>;

}  // namespace

TEST_CASE("a click on a row's box ticks it and unticks it again, and selects nothing") {
    Heard f;
    REQUIRE(f.BoxOf(1) != 0);
    f.Click(f.BoxOf(1));
    CHECK(f.list.Ticked(1));
    CHECK(f.ShownTicked(1));
    CHECK_FALSE(f.list.Ticked(0));
    f.Click(f.BoxOf(1));
    CHECK_FALSE(f.list.Ticked(1));
    CHECK_FALSE(f.ShownTicked(1));
    CHECK(f.heard.empty());
}

TEST_CASE("a list without boxes has none to click") {
    Heard f(toolkit::ListViewStyle{});
    CHECK(f.BoxOf(1) == 0);
    f.Press(VK_SPACE);
    CHECK_FALSE(f.list.Ticked(0));
}

TEST_CASE("a click on a row's text selects it and leaves its tick") {
    Heard f;
    f.Click(f.TextOf(1));
    CHECK(f.list.SelectedRow() == 1);
    CHECK_FALSE(f.list.Ticked(1));
    CHECK(f.heard == Events{"click 1"});
    f.Click(f.TextOf(2));
    CHECK(f.list.SelectedRow() == 2);
    CHECK_FALSE(f.list.Selected(1));
    CHECK(f.heard == Events{"click 1", "click 2"});
}

TEST_CASE("a click beside the rows is none on a row") {
    Heard f;
    RECT client{};
    GetClientRect(f.window, &client);
    f.Click(MAKELPARAM(20, client.bottom - 10));
    CHECK(f.heard.empty());
}

TEST_CASE("the space bar ticks the row with the focus") {
    Heard f;
    f.Click(f.TextOf(2));
    f.Press(VK_SPACE);
    CHECK(f.list.Ticked(2));
    f.Press(VK_SPACE);
    CHECK_FALSE(f.list.Ticked(2));
}

TEST_CASE("the arrow keys go from row to row, and each counts as a click") {
    Heard f;
    f.Click(f.TextOf(0));
    f.Press(VK_DOWN);
    CHECK(f.list.SelectedRow() == 1);
    f.Press(VK_END);
    CHECK(f.list.SelectedRow() == 2);
    f.Press(VK_END);
    CHECK(f.heard == Events{"click 0", "key 40", "click 1", "key 35", "click 2", "key 35"});
}

TEST_CASE("letters go to the next row that begins with them") {
    Heard f;
    f.list.AddRow("Änderung");
    f.Send(WM_CHAR, L'ä', 1);
    CHECK(f.list.SelectedRow() == 3);
    f.list.Clear();
    f.Send(WM_CHAR, L'x', 1);
    CHECK(f.list.SelectedRow() == toolkit::ListView::NoRow);
}

TEST_CASE("a click on a header tells its column, counted from 0") {
    Heard f;
    f.ClickHeader(0);
    f.ClickHeader(2);
    CHECK(f.heard == Events{"column 0", "column 2"});
}

TEST_CASE("the right button selects the row under it and is heard then") {
    Heard f;
    f.Send(WM_RBUTTONDOWN, MK_RBUTTON, f.TextOf(1));
    f.Send(WM_RBUTTONUP, 0, f.TextOf(1));
    CHECK(f.heard == Events{"right 1"});
}

TEST_CASE("the key of the context menu is heard like the right button") {
    Heard f;
    f.Click(f.TextOf(1));
    f.heard.clear();
    f.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(f.window), -1);
    CHECK(f.heard == Events{"right 1"});
}

TEST_CASE("the right button is heard on an empty list too") {
    Heard f;
    f.list.Clear();
    f.Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(50, 60));
    CHECK(f.heard == Events{"right -1"});
}

TEST_CASE("a double click on a row is heard, on its box it ticks twice") {
    Heard f;
    const auto twice = [&](LPARAM at) {
        f.Click(at);
        f.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
        f.Send(WM_LBUTTONUP, 0, at);
    };
    twice(f.TextOf(1));
    CHECK(f.heard == Events{"click 1", "twice 1"});
    twice(f.BoxOf(2));
    CHECK_FALSE(f.list.Ticked(2));
    CHECK(f.heard.size() == 2);
}

TEST_CASE("several rows are selected with the control and shift keys") {
    Heard f(toolkit::ListViewStyle{.multiSelect = true});
    f.list.AddRow("Datei 3");
    const auto hold = [](BYTE key, bool down) {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[key] = down ? 0x80 : 0;
        SetKeyboardState(keys);
    };
    const auto selected = [&] {
        std::string rows;
        for (int row = 0; row < f.list.Count(); ++row) {
            CHECK(f.list.Selected(row) == f.ShownSelected(row));
            rows += f.list.Selected(row) ? 'x' : '-';
        }
        return rows;
    };
    f.Click(f.TextOf(0));
    CHECK(selected() == "x---");
    hold(VK_CONTROL, true);
    f.Click(f.TextOf(2), MK_CONTROL);
    CHECK(selected() == "x-x-");
    CHECK(f.list.SelectedRow() == 2);
    f.Click(f.TextOf(0), MK_CONTROL);
    CHECK(selected() == "--x-");
    hold(VK_CONTROL, false);
    f.Click(f.TextOf(1));
    CHECK(selected() == "-x--");
    hold(VK_SHIFT, true);
    f.Click(f.TextOf(3), MK_SHIFT);
    CHECK(selected() == "-xxx");
    hold(VK_SHIFT, false);
    f.Click(f.TextOf(2));
    CHECK(selected() == "--x-");
}

TEST_CASE("a script ticks one row or all as in any list of the class") {
    Heard f;
    SetState(f, 1, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
    CHECK(f.list.Ticked(1));
    CHECK_FALSE(f.list.Ticked(0));
    SetState(f, -1, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
    CHECK(f.list.Ticked(0));
    CHECK(f.list.Ticked(2));
    SetState(f, 2, INDEXTOSTATEIMAGEMASK(1), LVIS_STATEIMAGEMASK);
    CHECK_FALSE(f.list.Ticked(2));
    SetState(f, 99, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
}

TEST_CASE("a script selects one row or all") {
    Heard f(toolkit::ListViewStyle{.multiSelect = true});
    SetState(f, 1, LVIS_SELECTED, LVIS_SELECTED);
    CHECK(f.list.SelectedRow() == 1);
    SetState(f, -1, LVIS_SELECTED, LVIS_SELECTED);
    CHECK(f.list.Selected(0));
    CHECK(f.list.Selected(2));
    SetState(f, -1, 0, LVIS_SELECTED);
    CHECK(f.list.SelectedRow() == toolkit::ListView::NoRow);
}

TEST_CASE("an event of a list may unload its form") {
    Heard f;
    const auto unload = [&] { f.form.Unload(); };
    SUBCASE("click") {
        f.list.onClick = unload;
        f.Click(f.TextOf(1));
    }
    SUBCASE("double click") {
        f.list.onDoubleClick = unload;
        f.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, f.TextOf(1));
    }
    SUBCASE("right button") {
        f.list.onRightButton = unload;
        f.Send(WM_RBUTTONDOWN, MK_RBUTTON, f.TextOf(1));
    }
    SUBCASE("key") {
        f.list.onKeyDown = [&](int) { unload(); };
        f.Press(VK_DELETE);
    }
    SUBCASE("arrow") {
        f.list.onClick = unload;
        f.Press(VK_DOWN);
    }
    SUBCASE("header") {
        f.list.onColumnClick = [&](int) { unload(); };
        f.ClickHeader(1);
    }
    CHECK_FALSE(f.form.Loaded());
}

TEST_CASE("an event of a list that fails ends in the default message") {
    Heard f;
    f.list.onColumnClick = [](int) { throw runtime::Failure(runtime::Overflow); };
    f.ClickHeader(1);
    CHECK(f.desk.messages.texts.size() == 1);
}

TEST_CASE("an event of a list may empty and fill it anew") {
    Heard f;
    f.list.onKeyDown = [&](int) {
        f.list.Clear();
        f.Fill(2);
    };
    f.Click(f.TextOf(2));
    f.Press(VK_DELETE);
    CHECK(f.Send(LVM_GETITEMCOUNT) == 2);
    CHECK(f.list.SelectedRow() == toolkit::ListView::NoRow);
}

namespace {

// The class of all lists made while this lives: it turns a tick by a message to its own window when
// the user clicks a box or presses the space bar, once for each, as the button or key goes down or
// with what follows, before or behind what it does otherwise.
class OtherClass {
  public:
    OtherClass(bool goingDown, bool before) {
        goingDown_ = goingDown;
        before_ = before;
        const platform::win32::WindowHandle sample(
            CreateWindowW(WC_LISTVIEWW, L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
        behind_ = reinterpret_cast<WNDPROC>(
            SetClassLongPtrW(sample.Get(), GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
        const bool replaced = behind_ != nullptr;
        REQUIRE(replaced);
    }
    ~OtherClass() {
        const platform::win32::WindowHandle sample(
            CreateWindowW(WC_LISTVIEWW, L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
        SetClassLongPtrW(sample.Get(), GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(behind_));
    }
    OtherClass(const OtherClass&) = delete;
    OtherClass& operator=(const OtherClass&) = delete;

    static inline int sent = 0;

  private:
    // Turns the tick as lists do that hold their ticks themselves.
    static void Turn(HWND window, int row) {
        const LRESULT state =
            SendMessageW(window, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
        LVITEMW item{};
        item.stateMask = LVIS_STATEIMAGEMASK;
        item.state = INDEXTOSTATEIMAGEMASK(state == INDEXTOSTATEIMAGEMASK(2) ? 1 : 2);
        SendMessageW(window, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        ++sent;
    }
    static int RowToTurn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == (goingDown_ ? WM_KEYDOWN : WM_CHAR) && wParam == VK_SPACE) {
            return static_cast<int>(
                SendMessageW(window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
        }
        if (message != (goingDown_ ? WM_LBUTTONDOWN : WM_LBUTTONUP)) return -1;
        LVHITTESTINFO hit{};
        hit.pt = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        SendMessageW(window, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        return hit.flags == LVHT_ONITEMSTATEICON ? hit.iItem : -1;
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const int row = RowToTurn(window, message, wParam, lParam);
        if (row >= 0 && before_) Turn(window, row);
        const LRESULT result = CallWindowProcW(behind_, window, message, wParam, lParam);
        if (row >= 0 && !before_) Turn(window, row);
        return result;
    }

    static inline WNDPROC behind_ = nullptr;
    static inline bool goingDown_ = false;
    static inline bool before_ = false;
};

}  // namespace

TEST_CASE("one click or key turns a tick once, whatever the class tells itself meanwhile") {
    for (int manner = 0; manner < 4; ++manner) {
        CAPTURE(manner);
        OtherClass other(manner % 2 == 0, manner < 2);
        Heard f;
        const auto hold = [&](const char* how, const std::function<void()>& act) {
            CAPTURE(std::string(how));
            OtherClass::sent = 0;
            for (bool ticked : {true, false, true}) {
                act();
                CHECK(f.list.Ticked(1) == ticked);
                CHECK(f.ShownTicked(1) == ticked);
            }
            CHECK(OtherClass::sent == 3);
            f.list.SetTicked(1, false);
        };
        hold("click", [&] { f.Click(f.BoxOf(1)); });
        hold("real click", [&] {
            RealMouse mouse;
            const LPARAM at = f.BoxOf(1);
            const bool before = f.list.Ticked(1);
            // Two clicks that lie so far apart are no double click.
            const int up = before ? GetSystemMetrics(SM_CYDOUBLECLK) : 0;
            RealMouse::MoveTo(f.window, LOWORD(at), HIWORD(at) - up);
            RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
            RealMouse::Send(MOUSEEVENTF_LEFTUP);
            ServeUntil([&] { return f.list.Ticked(1) != before; });
            ServeAWhile();
        });
        f.Click(f.TextOf(1));
        hold("space bar", [&] {
            f.Press(VK_SPACE);
            f.Send(WM_CHAR, VK_SPACE, 1);
        });
        hold("real space bar", [&] {
            RealMouse::Press(VK_SPACE, true);
            RealMouse::Press(VK_SPACE, false);
            const bool before = f.list.Ticked(1);
            ServeUntil([&] { return f.list.Ticked(1) != before; });
            ServeAWhile();
        });
        CHECK_FALSE(f.list.Ticked(0));
        CHECK_FALSE(f.list.Ticked(2));
    }
}

TEST_CASE("a real click on its box and the real space bar turn a tick once") {
    Heard f;
    SetForegroundWindow(f.desk.host.WindowOf(f.form));
    RealMouse mouse;
    const auto turns = [&](const std::function<void()>& act) {
        const bool before = f.list.Ticked(1);
        act();
        ServeUntil([&] { return f.list.Ticked(1) != before; });
        ServeAWhile();
        CHECK(f.list.Ticked(1) != before);
        CHECK(f.ShownTicked(1) != before);
    };
    for (const bool high : {false, true}) {
        turns([&] {
            const LPARAM at = f.BoxOf(1);
            // Two clicks that lie so far apart are no double click.
            const int up = high ? GetSystemMetrics(SM_CYDOUBLECLK) : 0;
            RealMouse::MoveTo(f.window, LOWORD(at), HIWORD(at) - up);
            RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
            RealMouse::Send(MOUSEEVENTF_LEFTUP);
        });
    }
    f.Click(f.TextOf(1));
    for (int i = 0; i < 2; ++i) {
        turns([] {
            RealMouse::Press(VK_SPACE, true);
            RealMouse::Press(VK_SPACE, false);
        });
    }
}

TEST_CASE("a real click on one of several selected rows leaves that one selected") {
    Heard f(toolkit::ListViewStyle{.multiSelect = true});
    SetForegroundWindow(f.desk.host.WindowOf(f.form));
    SetState(f, -1, LVIS_SELECTED, LVIS_SELECTED);
    RealMouse mouse;
    const LPARAM at = f.TextOf(1);
    RealMouse::MoveTo(f.window, LOWORD(at), HIWORD(at));
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    ServeUntil([&] { return !f.heard.empty(); });
    ServeAWhile();
    for (int row = 0; row < 3; ++row) {
        CAPTURE(row);
        CHECK(f.list.Selected(row) == (row == 1));
        CHECK(f.ShownSelected(row) == (row == 1));
    }
}

TEST_CASE("what is ticked by those who hear of a click is ticked") {
    Heard f;
    f.list.onClick = [&] { SetState(f, 2, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK); };
    f.Click(f.TextOf(0));
    CHECK(f.list.Ticked(2));
}

namespace {

// Hears what the lists of a form notify, but for the rows that become selected.
struct Deaf {
    static inline WNDPROC behind = nullptr;

    static LRESULT CALLBACK Hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NOTIFY) {
            const auto& change = *reinterpret_cast<const NMLISTVIEW*>(lParam);
            const bool becomesSelected = change.hdr.code == LVN_ITEMCHANGED && change.iItem >= 0 &&
                                         change.uNewState & LVIS_SELECTED;
            if (becomesSelected) return 0;
        }
        return CallWindowProcW(behind, window, message, wParam, lParam);
    }
};

}  // namespace

TEST_CASE("a row that stays selected when all are deselected need not be told of once more") {
    Heard f(toolkit::ListViewStyle{.multiSelect = true});
    SetState(f, -1, LVIS_SELECTED, LVIS_SELECTED);
    std::string atClick;
    f.list.onClick = [&] { atClick = f.list.Selected(1) ? "selected" : "not selected"; };
    const HWND parent = GetParent(f.window);
    Deaf::behind = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Deaf::Hear)));
    f.Click(f.TextOf(1));
    SetWindowLongPtrW(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Deaf::behind));
    REQUIRE(f.ShownSelected(1));
    CHECK(atClick == "selected");
    for (int row = 0; row < 3; ++row) CHECK(f.list.Selected(row) == (row == 1));
}
