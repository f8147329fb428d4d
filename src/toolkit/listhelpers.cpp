#include "toolkit/listhelpers.h"

#include <algorithm>

#include "toolkit/listview.h"

namespace toolkit {

void AdjustColumnWidth(ListView& list, bool accountForHeaders, int endColumnsToExclude) {
    const int count = static_cast<int>(list.Columns().size());
    const int last = std::min(count - endColumnsToExclude, count - 1);
    for (int index = 0; index <= last; ++index) list.FitColumn(index, accountForHeaders);
}

void SortByHeader(ListView& list, int header, bool& descending) {
    descending = !descending;
    // So that a sorted list is sorted once, not by the key and by the order again.
    list.SetSorted(false);
    list.SetSortKey(header);
    list.SetSortOrder(descending ? ListView::Descending : ListView::Ascending);
    list.SetSorted(true);
}

}  // namespace toolkit
