#include "platform/win32/windows/listviewwindow.h"

#include <algorithm>
#include <utility>

#include "platform/win32/text.h"
#include "runtime/text.h"

namespace platform::win32 {
namespace {

// Of a fresh column whose header needs no more, and of a header beside its text, in pixels at 96
// dots per inch.
constexpr int ColumnWidth = 96;
constexpr int HeaderEdges = 18;

// Stands for the number of a row.
constexpr int AllRows = -1;

constexpr UINT Unticked = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT TickedState = INDEXTOSTATEIMAGEMASK(2);

}  // namespace

ControlWindow::Recipe ListViewWindow::Describe() const {
    const DWORD single = control_.Style().multiSelect ? 0 : LVS_SINGLESEL;
    return {WC_LISTVIEWW, LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | single,
            WS_EX_CLIENTEDGE};
}

void ListViewWindow::Prepare() {
    const DWORD boxes = control_.Style().checkBoxes ? LVS_EX_CHECKBOXES : 0;
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(LVS_EX_FULLROWSELECT | boxes));
    if (boxes) Send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
    hook_.Watch(Window(), [this](HookedMessage& hooked) {
        const auto alive = shared_from_this();
        return Answer(hooked);
    });
}

void ListViewWindow::Detach() {
    if (locked_) LockWindow(false);
    hook_.Leave();
    ControlWindow::Detach();
}

void ListViewWindow::ShowItems() {
    if (stale_) return;
    stale_ = true;
    if (!locked_) Repaint();
}

void ListViewWindow::ShowValue() {
    selectionStale_ = true;
    ShowItems();
}

void ListViewWindow::LockWindow(bool locked) {
    locked_ = locked;
    LockWindowUpdate(locked ? Window() : nullptr);
    if (!locked) Repaint();
}

// Key and mouse messages are the user's. What the class tells itself while it has one is what is
// heard of as a click or key by then, or will be.
LRESULT ListViewWindow::Pass(const HookedMessage& hooked) {
    const UINT message = hooked.message;
    const bool byUser = (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
                        (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
    const bool outer = std::exchange(user_, user_ || byUser);
    const LRESULT result = hooked.Pass();
    user_ = outer;
    AskForSelection();
    return result;
}

// While the list is locked only who asks it for its rows makes it catch up.
LRESULT ListViewWindow::Answer(HookedMessage& hooked) {
    if (stale_ && (!locked_ || hooked.message >= LVM_FIRST)) CatchUp();
    switch (hooked.message) {
        case WM_KEYDOWN:
            return KeyDown(hooked);
        case WM_RBUTTONDOWN:
            RightButton({static_cast<short>(LOWORD(hooked.lParam)),
                         static_cast<short>(HIWORD(hooked.lParam))});
            return 0;
        // The mouse's has come as the right button.
        case WM_CONTEXTMENU:
            if (hooked.lParam == -1) Guard([this] { control_.PressRightButton(MenuPlace()); });
            return 0;
        case LVM_SETITEMSTATE:
            if (showing_ || user_) break;
            TickAsTold(static_cast<int>(hooked.wParam),
                       *reinterpret_cast<const LVITEMW*>(hooked.lParam));
            break;
        default:
            break;
    }
    return Pass(hooked);
}

// The class itself would wait for the button to come up, in a loop of its own, while a menu wants
// to open as it goes down.
void ListViewWindow::RightButton(POINT at) {
    SetFocus(Window());
    LVHITTESTINFO hit{};
    hit.pt = at;
    Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (control_.Has(hit.iItem) && !control_.Selected(hit.iItem)) {
        SetState(AllRows, 0, LVIS_SELECTED);
        SetState(hit.iItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
    Guard([this] { control_.PressRightButton(); });
}

// Below the text of the row that the keyboard is on, which it brings into sight; in the corner
// while it is on none.
toolkit::Point ListViewWindow::MenuPlace() const {
    RECT area{};
    area.left = LVIR_LABEL;
    if (const int row = Focused(); row >= 0) {
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
        Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
    }
    POINT place{std::max<LONG>(area.left, 0), area.bottom};
    MapWindowPoints(Window(), nullptr, &place, 1);
    return {place.x, place.y};
}

LRESULT ListViewWindow::KeyDown(HookedMessage& hooked) {
    const int key = static_cast<int>(hooked.wParam);
    Guard([&] { control_.PressKey(key); });
    if (!Window()) return 0;
    if (key == VK_SPACE) Toggle(Focused());
    const int before = Focused();
    const LRESULT result = Pass(hooked);
    if (Window() && Focused() != before) Guard([this] { control_.Click(); });
    return result;
}

int ListViewWindow::Focused() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

void ListViewWindow::CatchUp() {
    stale_ = false;
    const bool nested = std::exchange(showing_, true);
    for (; columns_ < static_cast<int>(control_.Columns().size()); ++columns_) {
        std::wstring header = ToWide(control_.Columns()[static_cast<std::size_t>(columns_)]);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.cx = static_cast<int>(
            std::max<LRESULT>(surroundings_.screen.Scale(ColumnWidth), HeaderWidth(header)));
        column.pszText = header.data();
        column.iSubItem = columns_;
        Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(columns_), reinterpret_cast<LPARAM>(&column));
    }
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(control_.Count()),
         LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    if (std::exchange(selectionStale_, false)) ShowSelection();
    showing_ = nested;
    if (locked_) ValidateRect(Window(), nullptr);
}

void ListViewWindow::SetState(int row, UINT state, UINT mask) const {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void ListViewWindow::ShowSelection() {
    SetState(AllRows, 0, LVIS_SELECTED);
    for (int row = 0; row < control_.Count(); ++row) {
        const UINT state = (control_.Selected(row) ? LVIS_SELECTED : 0U) |
                           (control_.HasFocus(row) ? LVIS_FOCUSED : 0U);
        if (state) SetState(row, state, state);
    }
}

// Those who hear of it here may send messages of their own, which are not the class's.
LRESULT ListViewWindow::Noticed(const NMHDR& notice) {
    const bool outer = std::exchange(user_, false);
    const LRESULT result = Hear(notice);
    user_ = outer;
    return result;
}

LRESULT ListViewWindow::Hear(const NMHDR& notice) {
    switch (notice.code) {
        case LVN_GETDISPINFOW:
            Tell(const_cast<LVITEMW&>(reinterpret_cast<const NMLVDISPINFOW&>(notice).item));
            break;
        case LVN_ODFINDITEMW:
            return Find(reinterpret_cast<const NMLVFINDITEMW&>(notice));
        case LVN_ITEMCHANGED:
            if (!showing_) Selected(reinterpret_cast<const NMLISTVIEW&>(notice));
            break;
        case LVN_ODSTATECHANGED: {
            const auto& change = reinterpret_cast<const NMLVODSTATECHANGE&>(notice);
            if (showing_) break;
            control_.SelectionMade(change.iFrom, change.iTo, change.uNewState & LVIS_SELECTED);
            break;
        }
        case LVN_COLUMNCLICK: {
            const int column = reinterpret_cast<const NMLISTVIEW&>(notice).iSubItem;
            Guard([&] { control_.ClickColumn(column); });
            break;
        }
        case NM_CLICK:
        case NM_DBLCLK:
            Clicked(reinterpret_cast<const NMITEMACTIVATE&>(notice));
            break;
        default:
            break;
    }
    return 0;
}

// A locked list may still be asked for rows that have gone.
void ListViewWindow::Tell(LVITEMW& item) {
    const bool exists =
        item.iItem >= 0 && item.iItem < control_.Count() && item.iSubItem < columns_;
    if (item.mask & LVIF_TEXT) {
        std::wstring& text = told_[turn_++ % std::size(told_)];
        text = widest_ ? *widest_ : exists ? ToWide(control_.Text(item.iItem, item.iSubItem)) : L"";
        item.pszText = text.data();
    }
    if (item.mask & LVIF_STATE && control_.Style().checkBoxes) {
        item.state = exists && control_.Ticked(item.iItem) ? TickedState : Unticked;
    }
}

// Whoever types letters goes to the next row that begins with them.
int ListViewWindow::Find(const NMLVFINDITEMW& search) const {
    if (!(search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL))) return -1;
    const std::string wanted = runtime::ToUpper(FromWide(search.lvfi.psz));
    const int count = control_.Count();
    for (int step = 0; step < count; ++step) {
        const int row = (std::max(search.iStart, 0) + step) % count;
        if (runtime::ToUpper(control_.Text(row).substr(0, wanted.size())) == wanted) return row;
    }
    return -1;
}

// No row's number stands for all rows.
void ListViewWindow::Selected(const NMLISTVIEW& change) {
    const bool all = change.iItem < 0;
    if (all || ((change.uNewState ^ change.uOldState) & LVIS_SELECTED)) {
        control_.SelectionMade(change.iItem, all ? control_.Count() - 1 : change.iItem,
                               change.uNewState & LVIS_SELECTED);
    }
    if (all) selectionDoubtful_ = true;
    if (!all && change.uNewState & ~change.uOldState & LVIS_FOCUSED) {
        control_.FocusMoved(change.iItem);
    }
}

// Of a row that stays selected when all are said to be deselected the class need not say so.
void ListViewWindow::AskForSelection() {
    if (!std::exchange(selectionDoubtful_, false) || !Window()) return;
    const auto next = [&](int row) {
        return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
    };
    for (int row = next(-1); row >= 0; row = next(row)) control_.SelectionMade(row, row, true);
}

void ListViewWindow::Clicked(const NMITEMACTIVATE& click) {
    AskForSelection();
    LVHITTESTINFO hit{};
    hit.pt = click.ptAction;
    Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.iItem >= 0 && hit.flags == LVHT_ONITEMSTATEICON) {
        Toggle(hit.iItem);
    } else if (click.iItem >= 0) {
        const bool twice = click.hdr.code == NM_DBLCLK;
        Guard([&] { twice ? control_.DoubleClick() : control_.Click(); });
    }
}

// The native window holds no ticks, so it cannot change one by itself.
void ListViewWindow::Toggle(int row) {
    if (!control_.Style().checkBoxes || !control_.Has(row)) return;
    control_.SetTicked(row, !control_.Ticked(row));
}

// A script ticks a row as it does with any list of this class.
void ListViewWindow::TickAsTold(int row, const LVITEMW& item) {
    if (!control_.Style().checkBoxes || !(item.stateMask & LVIS_STATEIMAGEMASK)) return;
    const bool ticked = (item.state & LVIS_STATEIMAGEMASK) == TickedState;
    for (int at = 0; row == AllRows && at < control_.Count(); ++at) control_.SetTicked(at, ticked);
    if (control_.Has(row)) control_.SetTicked(row, ticked);
}

void ListViewWindow::FitColumn(int column, bool includingHeader) {
    const std::wstring widest = WidestText(column);
    widest_ = &widest;
    const auto at = static_cast<WPARAM>(column);
    Send(LVM_SETCOLUMNWIDTH, at, includingHeader ? LVSCW_AUTOSIZE_USEHEADER : LVSCW_AUTOSIZE);
    widest_ = nullptr;
    // Not every system counts the room that a header has around its text.
    const LRESULT least = HeaderWidth(ToWide(control_.Columns()[at]));
    const bool isCut = includingHeader && Send(LVM_GETCOLUMNWIDTH, at) < least;
    if (isCut) Send(LVM_SETCOLUMNWIDTH, at, least);
}

LRESULT ListViewWindow::WidthOf(const std::wstring& text) const {
    return Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

LRESULT ListViewWindow::HeaderWidth(const std::wstring& header) const {
    return WidthOf(header) + surroundings_.screen.Scale(HeaderEdges);
}

// No byte of a text takes more room than the widest letter, so most texts need no measuring.
std::wstring ListViewWindow::WidestText(int column) const {
    const LRESULT letter = WidthOf(L"W");
    std::wstring widest;
    LRESULT width = 0;
    for (int row = 0; row < control_.Count(); ++row) {
        const std::string& text = control_.Text(row, column);
        if (static_cast<LRESULT>(text.size()) * letter <= width) continue;
        std::wstring wide = ToWide(text);
        const LRESULT own = WidthOf(wide);
        if (own <= width) continue;
        width = own;
        widest = std::move(wide);
    }
    return widest;
}

void ListViewWindow::EnsureVisible(int row) {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

}  // namespace platform::win32
