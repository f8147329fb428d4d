#pragma once

namespace toolkit {

class ListView;

// Sends the columns from 0 to the number of columns minus `endColumnsToExclude`, that one included,
// to the width of their widest text, or of their header if that is wider and counts.
void AdjustColumnWidth(ListView& list, bool accountForHeaders, int endColumnsToExclude);

// What the click on a header does to every list of the program: the direction turns round and the
// list is sorted by that column. `descending` is the list's own and false at first, so the first
// click of all sorts descending, and each further one, on whichever header, the other way round.
void SortByHeader(ListView& list, int header, bool& descending);

}  // namespace toolkit
