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
    list.SetSortKey(header);
    list.SetSortOrder(descending ? ListView::Descending : ListView::Ascending);
    list.SetSorted(true);
}

}  // namespace toolkit
