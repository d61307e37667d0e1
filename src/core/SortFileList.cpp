#include "core/SortFileList.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "base/CaseMap.h"
#include "core/NaturalSortKey.h"

namespace nomra {

namespace {

constexpr int kLastMenuHead = 8;
constexpr int kUnsortedHead = 21;

// The rows as the list control sorts them: text compared without regard to
// case, equal texts in their previous order.
void SortRowsBy(FileList& list, const std::vector<const std::string*>& keys) {
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  const bool descending = list.sortOrder == 1;
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    const int cmp = text::CompareNoCase(*keys[static_cast<std::size_t>(a)], *keys[static_cast<std::size_t>(b)]);
    return descending ? cmp > 0 : cmp < 0;
  });
  list.Reorder(order);
}

std::vector<const std::string*> ColumnTexts(FileList& list, int column) {
  std::vector<const std::string*> keys;
  keys.reserve(static_cast<std::size_t>(list.Count()));
  list.ForEach([&](FileEntry& row) { keys.push_back(&row[column]); });
  return keys;
}

}  // namespace

void SortRowsByColumn(FileList& list, int column) { SortRowsBy(list, ColumnTexts(list, column)); }

void sortFileList(MainModel& model, int columnHead) {
  const int c = columnHead - 1;
  FileList& list = model.list;
  int internalColumn = -1;
  if (c >= kColPath && c <= kColExifDate) {
    list.ForEach([&](FileEntry& row) { row[kColSortKey] = NaturalSortKey(row[c]); });
    internalColumn = kColSortKey;
  } else if (c == kColSize) {
    list.ForEach([&](FileEntry& row) { row[kColSortKey] = row.sizeTag; });
    internalColumn = kColSortKey;
  } else if (c == kColListPosition) {
    internalColumn = kColListPosition;
  } else {
    return;
  }
  model.frontEnd.SetBusy(true);
  SortRowsByColumn(list, internalColumn);
  list.sortKey = c;
  model.frontEnd.SetBusy(false);
}

void ClickColumnHead(MainModel& model, int columnHead) {
  if (model.list.sortOrder == 0 && columnHead == model.lastClickedColumn) {
    model.list.sortOrder = 1;
  } else {
    model.list.sortOrder = 0;
  }
  model.lastClickedColumn = columnHead;
  sortFileList(model, columnHead);
}

void mnuViewSortingSorted(MainModel& model, int entry) {
  model.list.sortOrder = (entry - 1) % 2;
  sortFileList(model, (entry + 3) / 2);
}

void mnuViewSortingUnsorted(MainModel& model) {
  model.list.sortOrder = 0;
  sortFileList(model, kUnsortedHead);
}

int CheckedSortMenuEntry(const MainModel& model) {
  const int head = model.list.sortKey + 1;
  if (head < 2 || head > kLastMenuHead) return 0;
  return 2 * (head - 1) - 1 + model.list.sortOrder;
}

}  // namespace nomra
