#include "core/SortFileList.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/CaseMap.h"
#include "core/BusyPointer.h"
#include "core/NaturalSortKey.h"

namespace nomra::core {

namespace {

constexpr int kLastMenuHead = 8;
constexpr int kUnsortedHead = 21;

// How a head sorts: the column whose text is compared, and how column 8 is
// filled first when the head sorts by it.
enum class SortText { None, Natural, SizeTag, Direct };

struct SortPlan {
  SortText kind = SortText::None;
  int sourceColumn = -1;
};

SortPlan PlanForHead(int columnHead) {
  const int c = columnHead - 1;
  if (c >= kColPath && c <= kColExifDate) return {SortText::Natural, c};
  if (c == kColSize) return {SortText::SizeTag, c};
  if (c == kColListPosition) return {SortText::Direct, kColListPosition};
  return {};
}

// One pass over the rows: column 8 is written where the plan says so, and the
// text to compare is lower-cased into one buffer, so that the sort compares
// plain bytes over memory that lies together (the byte order of UTF-8 is the
// order of code points). Each row is visited once: with 100,000 rows, a visit
// costs more than the work done in it.
class SortKeys {
 public:
  SortKeys(FileList& list, const SortPlan& plan) {
    rows_.reserve(static_cast<std::size_t>(list.Count()));
    std::vector<std::size_t> ends;
    ends.reserve(static_cast<std::size_t>(list.Count()));
    list.ForEach([&](FileEntry& row) {
      const std::string* text = &row[plan.sourceColumn];
      if (plan.kind == SortText::Natural) {
        AssignNaturalSortKey(row[kColSortKey], row[plan.sourceColumn]);
        text = &row[kColSortKey];
      } else if (plan.kind == SortText::SizeTag) {
        row[kColSortKey] = row.sizeTag;
        text = &row[kColSortKey];
      }
      base::AppendLowerCase(buffer_, *text);
      ends.push_back(buffer_.size());
      rows_.push_back(&row);
    });
    views_.reserve(ends.size());
    std::size_t from = 0;
    for (std::size_t end : ends) {
      views_.emplace_back(std::string_view(buffer_).substr(from, end - from));
      from = end;
    }
  }
  std::string_view Text(int index) const { return views_[static_cast<std::size_t>(index)]; }
  const FileEntry& Row(int index) const { return *rows_[static_cast<std::size_t>(index)]; }
  std::size_t Size() const { return rows_.size(); }

 private:
  std::string buffer_;
  std::vector<std::string_view> views_;
  std::vector<const FileEntry*> rows_;
};

// The rows as the list control sorts them: text compared without regard to
// case, in the list's direction, equal texts in their previous order. With
// a tie column, equal texts go by that column first, in the same direction;
// ties are rare, so that column is compared only when they occur.
void SortRows(FileList& list, const SortPlan& plan, int tieColumn) {
  const SortKeys keys(list, plan);
  const bool descending = list.sortOrder == 1;
  std::vector<int> order(keys.Size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  const auto before = [&](int a, int b) {
    int cmp = keys.Text(a).compare(keys.Text(b));
    if (cmp == 0 && tieColumn >= 0) cmp = base::CompareNoCase(keys.Row(a)[tieColumn], keys.Row(b)[tieColumn]);
    return descending ? cmp > 0 : cmp < 0;
  };
  // A refresh mostly finds the rows in order already; one look settles it.
  if (std::is_sorted(order.begin(), order.end(), before)) return;
  std::stable_sort(order.begin(), order.end(), before);
  list.Reorder(order);
}

}  // namespace

void SortRowsByColumn(FileList& list, int column) { SortRows(list, {SortText::Direct, column}, -1); }

void sortFileList(FileList& list, FrontEnd& frontEnd, int columnHead) {
  const SortPlan plan = PlanForHead(columnHead);
  if (plan.kind == SortText::None) return;
  BusyPointer busy(frontEnd);
  SortRows(list, plan, -1);
  list.sortKey = columnHead - 1;
}

void SortInFolderOrderThenByHead(FileList& list, int columnHead) {
  const SortPlan plan = PlanForHead(columnHead);
  if (plan.kind == SortText::None) {
    SortRowsByColumn(list, kColPath);
  } else {
    SortRows(list, plan, kColPath);
    list.sortKey = columnHead - 1;
  }
}

void ClickColumnHead(FileList& list, FrontEnd& frontEnd, int columnHead) {
  if (list.sortOrder == 0 && columnHead == list.lastClickedHead) {
    list.sortOrder = 1;
  } else {
    list.sortOrder = 0;
  }
  list.lastClickedHead = columnHead;
  sortFileList(list, frontEnd, columnHead);
}

void mnuViewSortingSorted(FileList& list, FrontEnd& frontEnd, int entry) {
  list.sortOrder = (entry - 1) % 2;
  sortFileList(list, frontEnd, (entry + 3) / 2);
}

void mnuViewSortingUnsorted(FileList& list, FrontEnd& frontEnd) {
  list.sortOrder = 0;
  sortFileList(list, frontEnd, kUnsortedHead);
}

int CheckedSortMenuEntry(const FileList& list) {
  const int head = list.sortKey + 1;
  if (head < 2 || head > kLastMenuHead) return 0;
  return 2 * (head - 1) - 1 + list.sortOrder;
}

}  // namespace nomra::core
