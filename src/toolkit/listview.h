#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/blocksequence.h"
#include "toolkit/controls.h"
#include "toolkit/geometry.h"

namespace toolkit {

struct ListViewStyle {
    // Each row has a box to tick.
    bool checkBoxes = false;
    // Several rows may be selected at once.
    bool multiSelect = false;
    // The size that the layout gives the list at least: average characters, and rows below the
    // header.
    int columns = 40;
    int lines = 6;
};

// Rows below headed columns. Rows and columns are counted from 0; column 0 is the row's own text,
// the others are its sub-items. A row that does not exist throws Failure: ObjectNotSet for NoRow,
// IndexOutOfBounds for any other, which a column that does not exist throws too.
//
// While the list is Sorted, a new row goes to the place that its text gives it, and a new key or
// order sorts at once; a text changed later moves its row only when SetSorted(true) is said again.
// Texts are compared as text (so "9" comes behind "10"), letters' case plays no part, and the order
// is the one of the user's language. Equal rows keep their order.
//
// The program raises no events by what it does to the list; they tell of the user.
class ListView : public Control {
  public:
    static constexpr int NoRow = -1;
    // Values of SortOrder.
    static constexpr int Ascending = 0;
    static constexpr int Descending = 1;

    ListView(Form& form, std::string name, ListViewStyle style = {});
    ~ListView() override;

    const ListViewStyle& Style() const { return style_; }

    const std::vector<std::string>& Columns() const { return columns_; }
    // Behind the others, with the width of a fresh column.
    void AddColumn(std::string header);

    int Count() const { return static_cast<int>(rows_.Size()); }
    bool Has(int row) const { return row >= 0 && row < Count(); }
    // Behind the others, or in its sorted place; unticked. Returns the row's number. Nobody may
    // rely on it being the last one of a sorted list.
    int AddRow(std::string text, std::string key = "");
    void RemoveRow(int row);
    void Clear();

    // "" for a sub-item that nobody has set.
    const std::string& Text(int row, int column = 0) const;
    void SetText(int row, int column, std::string text);
    // What the program has given the row to know it by. It is not shown.
    const std::string& Key(int row) const;

    bool Ticked(int row) const;
    void SetTicked(int row, bool ticked);

    bool Selected(int row) const;
    // Without multiSelect a newly selected row takes the selection from the other one. A selected
    // row also gets the focus.
    void SetSelected(int row, bool selected);
    // The selected row, of several the one that the user has come to last; NoRow when there is
    // none.
    int SelectedRow() const;
    // Whether the keyboard goes on from that row.
    bool HasFocus(int row) const;

    int SortKey() const { return sortKey_; }
    void SetSortKey(int column);
    int SortOrder() const { return sortOrder_; }
    void SetSortOrder(int order);
    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted);

    // Scrolls until the row is to be seen.
    void EnsureVisible(int row);
    // LVM_SETCOLUMNWIDTH with -1: as wide as the widest text of the column, or with -2: as its
    // header too. Nothing while there is no window.
    void FitColumn(int column, bool includingHeader);
    // LockWindowUpdate: the list is not painted until UnlockWindow. Only one window of the whole
    // system can be locked at a time; nothing happens while there is no window.
    void LockWindow();
    void UnlockWindow();

    // What the user's doings do; a disabled list hears nothing.
    void Click();
    void DoubleClick();
    void ClickColumn(int column);
    void PressRightButton(std::optional<Point> menuPlace = {});
    void PressKey(int virtualKey);
    // The user has selected the rows from `first` to `last`, or taken the selection from them; the
    // window shows it already. Rows that do not exist are passed over.
    void SelectionMade(int first, int last, bool selected);
    // The focus has gone to that row; the window shows it already.
    void FocusMoved(int row);

    // A row was clicked, or come to with the keyboard; what is selected by that is selected by now.
    Handler onClick;
    // A row was clicked twice in a row.
    Handler onDoubleClick;
    // The header of that column was clicked.
    std::function<void(int)> onColumnClick;
    // The right button was pressed anywhere on the list, or the key of the context menu.
    Handler onRightButton;
    // Where on the screen the menu for that belongs: by the key at the row; for the mouse none.
    std::optional<Point> MenuPlace() const { return menuPlace_; }
    // A virtual-key code of the platform.
    std::function<void(int)> onKeyDown;

  private:
    struct Row;
    Row& At(int row) const;
    // Where a row with that text belongs in a sorted list: behind its equals.
    std::size_t PlaceOf(const std::string& sortText) const;
    void DeleteRows();
    std::size_t ColumnAt(int column) const;
    std::string SortTextOf(const Row& row) const;
    void Sort();
    void Mark(Row& row, bool selected);
    void RowsMoved();

    ListViewStyle style_;
    std::vector<std::string> columns_;
    // Owned.
    BlockSequence<Row*> rows_;
    // The row that has the focus; may be nullptr.
    const Row* focused_ = nullptr;
    std::optional<Point> menuPlace_;
    int selectedCount_ = 0;
    int sortKey_ = 0;
    int sortOrder_ = Ascending;
    bool sorted_ = false;
    // Texts have changed since the list was sorted.
    bool disordered_ = false;
};

}  // namespace toolkit
