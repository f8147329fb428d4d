#include <windows.h>

#include <commctrl.h>

#include <iterator>

#include "endtoend/hands/walk.h"
#include "endtoend/lists.h"
#include "endtoend/pages.h"

namespace endtoend {
namespace {

struct KindRow {
    const char* className;
    Kind kind;
};

constexpr KindRow Kinds[] = {
    {"SysTabControl32", Kind::Tabs},     {"Edit", Kind::Field},
    {"msctls_trackbar32", Kind::Slider}, {"ComboBox", Kind::Choice},
    {"SysListView32", Kind::Rows},       {"ListBox", Kind::Rows},
    {"chameleonButton", Kind::Press},
};

constexpr const char* MenuLists[] = {"lvwFiles", "lvwSoftware"};

constexpr char RightButton[] = "right button";
constexpr char MenuKey[] = "menu key";
constexpr char ShiftF10[] = "Shift+F10";

// Where a list has its first row, and any other control something of its own.
POINT FirstRowOf(HWND control) {
    RECT area = {};
    GetWindowRect(control, &area);
    const POINT middle = MiddleOf(control);
    return {std::min(area.left + 30, middle.x), std::min(area.top + 28, middle.y)};
}

}  // namespace

Kind KindOf(HWND control) {
    const std::string name = ClassOf(control);
    for (const KindRow& row : Kinds) {
        if (name == row.className) return row.kind;
    }
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    // A tool's label, which only the tabulator and the arrows tell from another one.
    if (name == "Static") return Focused() == control ? Kind::Arrows : Kind::Other;
    if (name != "Button") return Kind::Other;
    switch (style & BS_TYPEMASK) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            return Kind::Check;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return Kind::Arrows;
        default:
            return Kind::Other;
    }
}

void Walk::Use(HWND control) {
    const std::string form = NameOf(GetAncestor(control, GA_ROOT));
    if (!used_.insert(form + '.' + NameOf(control)).second) return;
    switch (KindOf(control)) {
        case Kind::Tabs:
            return UseTabs(control);
        case Kind::Check:
            return UseCheck(control);
        case Kind::Arrows:
            return UseArrows(control);
        case Kind::Field:
            return UseField(control);
        case Kind::Slider:
            return UseSlider(control);
        case Kind::Choice:
            return UseChoice(control);
        case Kind::Rows:
            return UseRows(control);
        case Kind::Press:
            return UseButton(control);
        case Kind::Other:
            return;
    }
}

void Walk::UseTabs(HWND strip) {
    if (byMouse_) return;
    for (const int key : {VK_RIGHT, VK_LEFT}) {
        const int page = program_->CurrentTab();
        PressKey("arrow on the tabs", key,
                 [&] { return program_->CurrentTab() != page && Focused() == strip; });
    }
}

// There and back. Before one of them the program warns.
void Walk::UseCheck(HWND box) {
    for (int times = 0; times < 2; ++times) {
        const LRESULT before = Send(box, BM_GETCHECK);
        Push(box, [&] { return Send(box, BM_GETCHECK) != before; });
        if (program_->Box().window) LeaveBox();
    }
    ExpectBack(GetAncestor(box, GA_ROOT), box);
}

// One of a group, of which the tabulator stops at one: the arrows go through all of them.
void Walk::UseArrows(HWND control) {
    if (byMouse_) {
        Push(control, [&] { return Send(control, BM_GETCHECK) == BST_CHECKED; });
        return;
    }
    do {
        const HWND from = Focused();
        reached_.insert(from);
        if (!PressKey("Down", VK_DOWN, [&] { return Focused() != from; })) return;
    } while (Focused() != control && !reached_.count(Focused()));
    if (Focused() != control) Fault("the arrows do not come back to " + NameOf(control));
}

// A character more, or a full field's first one less; and as it was. Some fields take no Backspace.
void Walk::UseField(HWND field) {
    const std::string name = NameOf(field);
    if (byMouse_) Push(field, [&] { return Focused() == field; });
    if (!(GetWindowLongW(field, GWL_STYLE) & ES_READONLY)) {
        std::string text = TextOf(field);
        const bool full =
            !text.empty() && Send(field, EM_GETLIMITTEXT) <= static_cast<LRESULT>(text.size());
        const auto typed = static_cast<wchar_t>(full ? text.front() : '1');
        for (const bool less : {full, !full}) {
            Type(VK_HOME);
            Step((less ? "Delete in " : "a character in ") + name,
                 [&] {
                     if (less) {
                         Type(VK_DELETE);
                     } else {
                         TypeCharacter(typed);
                     }
                 },
                 [&] { return TextOf(field) != text; });
            text = TextOf(field);
        }
    }
    OpenMenus(field);
}

void Walk::UseSlider(HWND slider) {
    const auto position = [&] { return Send(slider, TBM_GETPOS); };
    RECT area = {};
    GetWindowRect(slider, &area);
    const LONG middle = (area.top + area.bottom) / 2;
    bool left = position() == Send(slider, TBM_GETRANGEMAX);
    for (int times = 0; times < 2; ++times, left = !left) {
        const LRESULT before = position();
        const auto moved = [&] { return position() != before; };
        const std::string where = (left ? "left" : "right") + (" on " + NameOf(slider));
        if (byMouse_) {
            const POINT place = {left ? area.left + 12 : area.right - 9, middle};
            Step("click " + where, [&] { ClickMouse(place); }, moved);
        } else {
            PressKey(where, left ? VK_LEFT : VK_RIGHT, moved);
        }
    }
}

void Walk::UseChoice(HWND combo) {
    const std::string name = NameOf(combo);
    const auto open = [&] { return Send(combo, CB_GETDROPPEDSTATE) != 0; };
    const auto closed = [&] { return !open() && Focused() == combo; };
    if (byMouse_) {
        RECT area = {};
        GetWindowRect(combo, &area);
        const POINT arrow = {area.right - 8, area.top + 10};
        const POINT firstItem = {area.left + 12, area.bottom + 8};
        for (const POINT& then : {arrow, firstItem}) {
            Step("click the arrow of " + name, [&] { ClickMouse(arrow); }, open);
            Step(
                then.x == arrow.x ? "click it again" : "click the first item",
                [&] { ClickMouse(then); }, closed);
        }
        return;
    }
    PressKey("Alt+Down on " + name, VK_DOWN, open, {VK_MENU});
    PressKey("Return", VK_RETURN, closed);
    // A dialog takes Escape for itself even while a list is open.
    if (NameOf(GetAncestor(combo, GA_ROOT)) == "frmMain") {
        PressKey("Alt+Down on " + name, VK_DOWN, open, {VK_MENU});
        PressKey("Escape", VK_ESCAPE, closed);
    }
    const LRESULT chosen = Send(combo, CB_GETCURSEL);
    if (Send(combo, CB_GETCOUNT) < 2 || chosen < 0) return;
    const bool atEnd = chosen == Send(combo, CB_GETCOUNT) - 1;
    PressKey("arrow on " + name, atEnd ? VK_UP : VK_DOWN,
             [&] { return Send(combo, CB_GETCURSEL) != chosen; });
    PressKey("arrow back", atEnd ? VK_DOWN : VK_UP,
             [&] { return Send(combo, CB_GETCURSEL) == chosen; });
}

void Walk::UseRows(HWND list) {
    const std::string name = NameOf(list);
    const auto focused = [&] { return Focused() == list; };
    const bool hasRows = ClassOf(list) == "SysListView32" && Send(list, LVM_GETITEMCOUNT) > 0;
    if (byMouse_) {
        Step("click " + name, [&] { ClickMouse(FirstRowOf(list)); }, focused);
    } else {
        PressKey("Down on " + name, VK_DOWN, focused);
        PressKey("Home", VK_HOME, focused);
        if (hasRows)
            PressKey("Space", VK_SPACE, [&] { return Send(list, LVM_GETSELECTEDCOUNT) > 0; });
    }
    for (const char* withMenu : MenuLists) {
        if (hasRows && name == withMenu) OpenMenus(list);
    }
}

void Walk::OpenMenu(HWND control, const std::string& way) {
    Step(
        way + " on " + NameOf(control),
        [&] {
            if (way == RightButton) {
                ClickMouse(FirstRowOf(control), Button::Right);
            } else if (way == MenuKey) {
                Type(VK_APPS);
            } else {
                Type(VK_F10, {VK_SHIFT});
            }
        },
        [] { return See().menu; });
}

// Behind it the keyboard still works: the tabulator leads away and back.
void Walk::OpenMenus(HWND control) {
    const std::vector<std::string> byKeys = {MenuKey, ShiftF10};
    for (const std::string& way : byMouse_ ? std::vector<std::string>{RightButton} : byKeys) {
        OpenMenu(control, way);
        if (!byMouse_) PressKey("Down in the menu", VK_DOWN, [] { return See().menu; });
        const auto left = [&] { return !See().menu && Focused() == control; };
        if (byMouse_) {
            RECT area = {};
            GetWindowRect(control, &area);
            const POINT beside = {area.left + 6, area.top + 6};
            Step("click beside the menu", [&] { ClickMouse(beside); }, left);
        } else {
            PressKey("Escape", VK_ESCAPE, left);
        }
        if (!StopsTabulator(control)) continue;
        PressKey("Tab behind the menu", VK_TAB, [&] { return Focused() != control; });
        PressKey("Shift+Tab", VK_TAB, [&] { return Focused() == control; }, {VK_SHIFT});
    }
}

// Another process's menu cannot be asked where its items are.
void Walk::Choose(const Menu& menu, int item) const {
    if (!byMouse_) {
        for (int down = 0; down < item; ++down) Type(VK_DOWN);
        Type(VK_RETURN);
        return;
    }
    constexpr int Edge = 3;
    constexpr int Separator = 5;
    RECT area = {};
    GetWindowRect(FindWindowW(L"#32768", nullptr), &area);
    int above = 0;
    for (const int after : menu.separatorsAfter) above += after < item ? Separator : 0;
    const int all = static_cast<int>(menu.separatorsAfter.size()) * Separator;
    const int line = (area.bottom - area.top - 2 * Edge - all) / menu.items;
    ClickMouse({area.left + 30, area.top + Edge + above + line * item - line / 2});
}

void Walk::ChooseFromMenu(HWND control, const Menu& menu, int item, const Come& come) {
    OpenMenu(control, byMouse_ ? RightButton : MenuKey);
    Step("item " + std::to_string(item) + " of the menu", [&] { Choose(menu, item); }, come);
}

}  // namespace endtoend
