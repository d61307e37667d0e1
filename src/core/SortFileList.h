#pragma once

#include "core/FileList.h"
#include "core/FrontEnd.h"

namespace nomra::core {

// Sorts by the column of head n (column n - 1): heads 2 to 7 by the natural
// sort text of their column, head 8 by the size's padded tag, head 21 by the
// position of the last refresh. Any other head changes nothing. Ties keep
// their order. Afterwards only the sorted head shows an arrow.
void sortFileList(FileList& list, FrontEnd& frontEnd, int columnHead);

// A click on a column head: a second click on the same ascending head turns
// it descending, anything else sorts ascending.
void ClickColumnHead(FileList& list, FrontEnd& frontEnd, int columnHead);

// The sort menu: entries come in pairs, ascending and descending, for heads
// 2 to 8.
void mnuViewSortingSorted(FileList& list, FrontEnd& frontEnd, int entry);
// Back to the order of the last refresh.
void mnuViewSortingUnsorted(FileList& list, FrontEnd& frontEnd);

// Which sort menu entry is checked: 1 to 14, or 0 when "unsorted" is.
int CheckedSortMenuEntry(const FileList& list);

// Sorts every row by the text of one column, in the list's direction.
void SortRowsByColumn(FileList& list, int column);

// What a refresh does to the order: the rows go into folder order, then, for
// a head that sorts, by that head. Sorting twice, each time keeping equal
// texts in their order, is one sort by the head with ties in folder order,
// and that is how it runs.
void SortInFolderOrderThenByHead(FileList& list, int columnHead);

}  // namespace nomra::core
