#include "core/SortFileList.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/CaseMap.h"
#include "core/NaturalSortKey.h"

namespace nomra {

namespace {

constexpr int kLastMenuHead = 8;
constexpr int kUnsortedHead = 21;

// Lower-cases each text once into one buffer, so that comparisons are plain
// byte compares over memory that lies together; the byte order of UTF-8 is
// the order of code points.
class FoldedTexts {
 public:
  FoldedTexts(FileList& list, int column) {
    std::vector<std::size_t> ends;
    ends.reserve(static_cast<std::size_t>(list.Count()));
    list.ForEach([&](FileEntry& row) {
      text::AppendLowerCase(buffer_, row[column]);
      ends.push_back(buffer_.size());
    });
    views_.reserve(ends.size());
    std::size_t from = 0;
    for (std::size_t end : ends) {
      views_.emplace_back(std::string_view(buffer_).substr(from, end - from));
      from = end;
    }
  }
  std::string_view operator[](int index) const { return views_[static_cast<std::size_t>(index)]; }

 private:
  std::string buffer_;
  std::vector<std::string_view> views_;
};

// The rows as the list control sorts them: text compared without regard to
// case, in the list's direction, equal texts in their previous order. With
// a tie column, equal texts go by that column first, in the same direction;
// ties are rare, so that column is compared only when they occur.
void SortRows(FileList& list, int column, int tieColumn) {
  const FoldedTexts primary(list, column);
  std::vector<const FileEntry*> rows;
  rows.reserve(static_cast<std::size_t>(list.Count()));
  list.ForEach([&](const FileEntry& row) { rows.push_back(&row); });
  const bool descending = list.sortOrder == 1;
  std::vector<int> order(rows.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    int cmp = primary[a].compare(primary[b]);
    if (cmp == 0 && tieColumn >= 0) {
      cmp = text::CompareNoCase((*rows[static_cast<std::size_t>(a)])[tieColumn],
                                (*rows[static_cast<std::size_t>(b)])[tieColumn]);
    }
    return descending ? cmp > 0 : cmp < 0;
  });
  list.Reorder(order);
}

// Column 8 gets the sort text of the head's column; the answer is the column
// to sort by, or -1 for a head that doesn't sort.
int PrepareSortColumn(FileList& list, int c) {
  if (c >= kColPath && c <= kColExifDate) {
    list.ForEach([&](FileEntry& row) { row[kColSortKey] = NaturalSortKey(row[c]); });
    return kColSortKey;
  }
  if (c == kColSize) {
    list.ForEach([&](FileEntry& row) { row[kColSortKey] = row.sizeTag; });
    return kColSortKey;
  }
  if (c == kColListPosition) return kColListPosition;
  return -1;
}

}  // namespace

void SortRowsByColumn(FileList& list, int column) { SortRows(list, column, -1); }

void sortFileList(MainModel& model, int columnHead) {
  const int c = columnHead - 1;
  model.frontEnd.SetBusy(true);
  const int internalColumn = PrepareSortColumn(model.list, c);
  if (internalColumn >= 0) {
    SortRows(model.list, internalColumn, -1);
    model.list.sortKey = c;
  }
  model.frontEnd.SetBusy(false);
}

void SortInFolderOrderThenByHead(MainModel& model, int columnHead) {
  const int c = columnHead - 1;
  model.frontEnd.SetBusy(true);
  const int internalColumn = PrepareSortColumn(model.list, c);
  if (internalColumn >= 0) {
    SortRows(model.list, internalColumn, kColPath);
    model.list.sortKey = c;
  } else {
    SortRows(model.list, kColPath, -1);
  }
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
