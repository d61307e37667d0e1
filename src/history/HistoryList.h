#pragma once
#include <vector>

#include "history/HistoryRecord.h"

namespace nomra::history {

// lstFiles of the history window without the window: the rows in the order
// shown, and the head that carries the sort arrow.
struct HistoryList {
  std::vector<HistoryRow> rows;
  // The date head carries the ascending arrow from the start, though the
  // rows come in file order until a head is clicked.
  int sortColumn = 0;
  bool descending = false;
};

// cmdUndoRenaming: at least one row selected, black or red.
bool CanUndo(const HistoryList& list);
// cmdDeleteHistory: the list has rows.
bool CanDelete(const HistoryList& list);

// A click on a column head: the head that carries the arrow turns its
// direction over, another head takes the arrow, ascending. Then the rows are
// sorted. A column outside the four changes nothing.
void ClickHistoryHead(HistoryList& list, int column);

// Sorts the rows by the text of the arrow's column as shown, without regard to
// case, in its direction; equal texts keep their order.
void SortHistory(HistoryList& list);

}  // namespace nomra::history
