#pragma once

#include "core/MainModel.h"

namespace nomra {

// Sorts by the column of head n (column n - 1): heads 2 to 7 by the natural
// sort text of their column, head 8 by the size's padded tag, head 21 by the
// position of the last refresh. Any other head changes nothing. Ties keep
// their order. Afterwards only the sorted head shows an arrow.
void sortFileList(MainModel& model, int columnHead);

// A click on a column head: a second click on the same ascending head turns
// it descending, anything else sorts ascending.
void ClickColumnHead(MainModel& model, int columnHead);

// The sort menu: entries come in pairs, ascending and descending, for heads
// 2 to 8.
void mnuViewSortingSorted(MainModel& model, int entry);
// Back to the order of the last refresh.
void mnuViewSortingUnsorted(MainModel& model);

// Which sort menu entry is checked: 1 to 14, or 0 when "unsorted" is.
int CheckedSortMenuEntry(const MainModel& model);

// Sorts every row by the text of one column, in the list's direction.
void SortRowsByColumn(FileList& list, int column);

// What a refresh does to the order: the rows go into folder order, then, for
// a head that sorts, by that head. Sorting twice, each time keeping equal
// texts in their order, is one sort by the head with ties in folder order,
// and that is how it runs.
void SortInFolderOrderThenByHead(MainModel& model, int columnHead);

}  // namespace nomra
