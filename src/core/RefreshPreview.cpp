#include "core/RefreshPreview.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "base/MessageText.h"
#include "core/SortFileList.h"

namespace nomra {

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

void ComputeCommandState(MainModel& model) {
  auto& enabled = model.commands.enabled;
  enabled.clear();
  for (const char* always : {"OpenFile", "Options", "ImgPreview"}) enabled.insert(always);
  if (model.changedCount > 0) {
    for (const char* name : {"mnuTakeChanges", "mnuRejectChanges", "TakeChanges", "RejectChanges"}) {
      enabled.insert(name);
    }
  }
  if (model.list.Empty()) return;
  for (const char* name : {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuFindDuplications", "mnuSpecial",
                           "mnuScript", "mnuRename", "StartRunScript"}) {
    enabled.insert(name);
  }
  if (model.script.recording == 0) enabled.insert("StartRecordScript");
  if (model.scriptMenuHasEntries) enabled.insert("RunSelectedScript");
  if (model.undoLevels > 0) {
    enabled.insert("mnuUndo");
    enabled.insert("Undo");
  }
  enabled.insert("DelList");
  for (const std::string& key : MainToolBarKeys()) {
    if (key >= "Rename01" && key <= "Rename99") enabled.insert(key);
  }
}

}  // namespace

void refreshPreview(MainModel& model) {
  FileList& list = model.list;
  model.folderCount = list.Empty() ? 0 : 1;
  model.changedCount = 0;
  model.undoLevels = 0;

  bool newState = false;
  int position = 0;
  FolderCounter folders;
  list.ForEach([&](FileEntry& row) {
    ++position;
    folders.Add(row[kColPath]);
    row[kColDisplay] = model.iconView ? row[kColNewName] : std::string();
    if (row[kColOldName] == row[kColNewName]) {
      row.colour = RowColour::Black;
    } else {
      row.colour = RowColour::DarkRed;
      ++model.changedCount;
      // A name that went back to its old form is no new state on its own.
      if (row[kColNewName] != row[kColHistory0]) newState = true;
    }
    SetListPosition(row[kColListPosition], position);
  });

  if (newState) PushHistory(list);
  model.folderCount = folders.Count();
  // Rows go into folder order, then back into the user's order; a saved
  // column of 0 is no sort head, so the rows stay in folder order.
  if (!list.Empty()) SortInFolderOrderThenByHead(model, list.sortKey + 1);

  if (list.Empty()) model.selectedScriptLabel = model.statusTexts[5];
  model.undoLevels = CountUndoLevels(list);
  ComputeCommandState(model);

  model.statusCounter = 0;
  const std::string status =
      FormatMessage(model.statusTexts[1], {std::to_string(list.Count()), std::to_string(model.folderCount),
                                           std::to_string(model.changedCount)});
  model.frontEnd.SetStatusText(status);
}

}  // namespace nomra
