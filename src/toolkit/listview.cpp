#include "toolkit/listview.h"

#include <algorithm>
#include <memory>

#include "runtime/failure.h"
#include "toolkit/form.h"

namespace toolkit {

struct ListView::Row {
    std::vector<std::string> texts;
    std::string key;
    // What the row was sorted by, while the list is Sorted.
    std::string sortText;
    bool ticked = false;
    bool selected = false;
};

ListView::ListView(Form& form, std::string name, ListViewStyle style)
    : Control(form, ControlKind::ListView, std::move(name), "", true), style_(style) {}

ListView::~ListView() {
    DeleteRows();
}

void ListView::DeleteRows() {
    rows_.ForEach([](const Row* row) {
        delete row;
        return true;
    });
    rows_.Clear();
}

void ListView::AddColumn(std::string header) {
    columns_.push_back(std::move(header));
    Changed(Aspect::Items);
}

ListView::Row& ListView::At(int row) const {
    if (row == NoRow) throw runtime::Failure(runtime::ObjectNotSet);
    if (!Has(row)) throw runtime::Failure(runtime::IndexOutOfBounds);
    return *rows_[static_cast<std::size_t>(row)];
}

// The row's own text is there without any column.
std::size_t ListView::ColumnAt(int column) const {
    const bool exists = column == 0 || (column > 0 && column < static_cast<int>(columns_.size()));
    if (!exists) throw runtime::Failure(runtime::IndexOutOfBounds);
    return static_cast<std::size_t>(column);
}

int ListView::AddRow(std::string text, std::string key) {
    auto row = std::make_unique<Row>();
    row->texts.reserve(std::max<std::size_t>(columns_.size(), 1));
    row->texts.push_back(std::move(text));
    row->key = std::move(key);
    std::size_t place = rows_.Size();
    if (sorted_) {
        row->sortText = SortTextOf(*row);
        place = PlaceOf(row->sortText);
    }
    const bool isLast = place == rows_.Size();
    rows_.Insert(place, row.get());
    row.release();
    if (isLast) {
        Changed(Aspect::Items);
    } else {
        RowsMoved();
    }
    return static_cast<int>(place);
}

std::size_t ListView::PlaceOf(const std::string& sortText) const {
    const bool descending = sortOrder_ == Descending;
    std::size_t first = 0;
    std::size_t last = rows_.Size();
    while (first < last) {
        const std::size_t middle = first + (last - first) / 2;
        const std::string& other = rows_[middle]->sortText;
        if (descending ? other >= sortText : other <= sortText) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

void ListView::RemoveRow(int row) {
    Row& gone = At(row);
    const bool isLast = row == Count() - 1;
    Mark(gone, false);
    if (focused_ == &gone) focused_ = nullptr;
    rows_.Erase(static_cast<std::size_t>(row));
    delete &gone;
    if (isLast) {
        Changed(Aspect::Items);
    } else {
        RowsMoved();
    }
}

void ListView::Clear() {
    if (Count() == 0) return;
    DeleteRows();
    focused_ = nullptr;
    selectedCount_ = 0;
    Changed(Aspect::Items);
}

const std::string& ListView::Text(int row, int column) const {
    static const std::string none;
    const auto& texts = At(row).texts;
    const std::size_t at = ColumnAt(column);
    return at < texts.size() ? texts[at] : none;
}

void ListView::SetText(int row, int column, std::string text) {
    auto& texts = At(row).texts;
    const std::size_t at = ColumnAt(column);
    if (at >= texts.size()) texts.resize(at + 1);
    texts[at] = std::move(text);
    disordered_ = true;
    Changed(Aspect::Items);
}

const std::string& ListView::Key(int row) const {
    return At(row).key;
}

bool ListView::Ticked(int row) const {
    return At(row).ticked;
}

void ListView::SetTicked(int row, bool ticked) {
    Row& changed = At(row);
    if (changed.ticked == ticked) return;
    changed.ticked = ticked;
    Changed(Aspect::Items);
}

bool ListView::Selected(int row) const {
    return At(row).selected;
}

void ListView::SetSelected(int row, bool selected) {
    Row& changed = At(row);
    if (selected) focused_ = &changed;
    if (changed.selected == selected) return;
    if (selected && !style_.multiSelect) SelectionMade(0, Count() - 1, false);
    Mark(changed, selected);
    Changed(Aspect::Value);
}

int ListView::SelectedRow() const {
    if (selectedCount_ == 0) return NoRow;
    const bool atFocus = focused_ && focused_->selected;
    int found = 0;
    rows_.ForEach([&](const Row* row) {
        if (atFocus ? row == focused_ : row->selected) return false;
        ++found;
        return true;
    });
    return found;
}

void ListView::Mark(Row& row, bool selected) {
    selectedCount_ += static_cast<int>(selected) - static_cast<int>(row.selected);
    row.selected = selected;
}

void ListView::SetSortKey(int column) {
    ColumnAt(column);
    if (column == sortKey_) return;
    sortKey_ = column;
    if (sorted_) Sort();
}

void ListView::SetSortOrder(int order) {
    if (order != Ascending && order != Descending) {
        throw runtime::Failure(runtime::InvalidPropertyValue);
    }
    if (order == sortOrder_) return;
    sortOrder_ = order;
    if (sorted_) Sort();
}

void ListView::SetSorted(bool sorted) {
    const bool isNew = sorted && !sorted_;
    sorted_ = sorted;
    if (isNew || (sorted && disordered_)) Sort();
}

std::string ListView::SortTextOf(const Row& row) const {
    const auto at = static_cast<std::size_t>(sortKey_);
    return at < row.texts.size() ? Owner().Host().SortKey(row.texts[at]) : "";
}

void ListView::Sort() {
    std::vector<Row*> sorted;
    sorted.reserve(rows_.Size());
    rows_.ForEach([&](Row* row) {
        row->sortText = SortTextOf(*row);
        sorted.push_back(row);
        return true;
    });
    const bool descending = sortOrder_ == Descending;
    std::stable_sort(sorted.begin(), sorted.end(), [&](const Row* left, const Row* right) {
        return descending ? right->sortText < left->sortText : left->sortText < right->sortText;
    });
    rows_.Replace(sorted.data());
    disordered_ = false;
    RowsMoved();
}

// The window knows by their numbers which rows are selected.
void ListView::RowsMoved() {
    Changed(Aspect::Items);
    if (selectedCount_ > 0 || focused_) Changed(Aspect::Value);
}

void ListView::EnsureVisible(int row) {
    At(row);
    if (View()) View()->EnsureVisible(row);
}

void ListView::FitColumn(int column, bool includingHeader) {
    ColumnAt(column);
    if (View()) View()->FitColumn(column, includingHeader);
}

void ListView::LockWindow() {
    if (View()) View()->LockWindow(true);
}

void ListView::UnlockWindow() {
    if (View()) View()->LockWindow(false);
}

void ListView::Click() {
    if (Enabled() && onClick) onClick();
}

void ListView::DoubleClick() {
    if (Enabled() && onDoubleClick) onDoubleClick();
}

void ListView::ClickColumn(int column) {
    if (Enabled() && onColumnClick) onColumnClick(column);
}

void ListView::PressRightButton(std::optional<Point> menuPlace) {
    menuPlace_ = menuPlace;
    if (Enabled() && onRightButton) onRightButton();
}

void ListView::PressKey(int virtualKey) {
    if (Enabled() && onKeyDown) onKeyDown(virtualKey);
}

void ListView::SelectionMade(int first, int last, bool selected) {
    for (int row = std::max(first, 0); row <= last && row < Count(); ++row) Mark(At(row), selected);
}

void ListView::FocusMoved(int row) {
    focused_ = Has(row) ? &At(row) : nullptr;
}

bool ListView::HasFocus(int row) const {
    return focused_ && &At(row) == focused_;
}

}  // namespace toolkit
