#include "history/HistoryList.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "base/CaseMap.h"

namespace nomra::history {

bool CanUndo(const HistoryList& list) {
  return std::any_of(list.rows.begin(), list.rows.end(), [](const HistoryRow& row) { return row.selected; });
}

bool CanDelete(const HistoryList& list) { return !list.rows.empty(); }

void ClickHistoryHead(HistoryList& list, int column) {
  if (column < 0 || column >= kHistoryColumnCount) return;
  if (column == list.sortColumn) {
    list.descending = !list.descending;
  } else {
    list.sortColumn = column;
    list.descending = false;
  }
  SortHistory(list);
}

void SortHistory(HistoryList& list) {
  // Each row's text is lowered once, not at every comparison.
  std::vector<std::string> keys;
  keys.reserve(list.rows.size());
  for (const HistoryRow& row : list.rows) keys.push_back(base::ToLower(row.ColumnText(list.sortColumn)));
  std::vector<std::size_t> order(list.rows.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return list.descending ? keys[b] < keys[a] : keys[a] < keys[b];
  });
  std::vector<HistoryRow> sorted;
  sorted.reserve(list.rows.size());
  for (std::size_t index : order) sorted.push_back(std::move(list.rows[index]));
  list.rows = std::move(sorted);
}

}  // namespace nomra::history
