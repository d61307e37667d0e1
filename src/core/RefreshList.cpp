#include "core/RefreshList.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "base/MessageText.h"
#include "core/SortFileList.h"

namespace nomra::core {

namespace {

// Each history level takes the one before it; column 9 takes the new name.
void PushHistory(FileList& list) {
  list.ForEach([](FileEntry& row) { row.PushHistory(row[kColNewName]); });
}

// Column 20 as 12 digits, written in place: this runs for every row of
// every refresh.
void SetListPosition(std::string& column, int position) {
  char digits[12];
  for (int i = 11; i >= 0; --i) {
    digits[i] = static_cast<char>('0' + position % 10);
    position /= 10;
  }
  column.assign(digits, sizeof digits);
}

// Distinct folders of the rows; rows of one folder mostly come together, so
// a row with the folder of the one before costs no look-up.
class FolderCounter {
 public:
  void Add(const std::string& folder) {
    if (last_ != nullptr && *last_ == folder) return;
    last_ = &folder;
    folders_.insert(folder);
  }
  int Count() const { return static_cast<int>(folders_.size()); }

 private:
  const std::string* last_ = nullptr;
  std::unordered_set<std::string_view> folders_;
};

int CountUndoLevels(const FileList& list) {
  if (list.Empty()) return 0;
  const FileEntry& first = list.Item(1);
  int levels = 0;
  for (int column = kColHistoryFirst; column <= kColHistoryLast; ++column) {
    if (!first[column].empty()) ++levels;
  }
  return levels;
}

}  // namespace

void RefreshList(ListState& state) {
  FileList& list = state.list;
  state.folderCount = list.Empty() ? 0 : 1;
  state.changedCount = 0;
  state.undoLevels = 0;

  bool newState = false;
  int position = 0;
  FolderCounter folders;
  list.ForEach([&](FileEntry& row) {
    ++position;
    folders.Add(row[kColPath]);
    row[kColDisplay] = state.iconView ? row[kColNewName] : std::string();
    if (row[kColOldName] == row[kColNewName]) {
      row.colour = RowColour::Black;
    } else {
      row.colour = RowColour::DarkRed;
      ++state.changedCount;
      // A name that went back to its old form is no new state on its own.
      if (row[kColNewName] != row[kColHistory0]) newState = true;
    }
    SetListPosition(row[kColListPosition], position);
  });

  if (newState) PushHistory(list);
  state.folderCount = folders.Count();
  // Rows go into folder order, then back into the user's order; a saved
  // column of 0 is no sort head, so the rows stay in folder order.
  if (!list.Empty()) SortInFolderOrderThenByHead(list, list.sortKey + 1);

  state.undoLevels = CountUndoLevels(list);
  state.statusCounter = 0;
}

std::string ListSummaryText(const StatusTexts& texts, const ListState& state) {
  return base::FormatMessage(texts.listSummary, {std::to_string(state.list.Count()), std::to_string(state.folderCount),
                                                 std::to_string(state.changedCount)});
}

}  // namespace nomra::core
