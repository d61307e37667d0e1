#pragma once
#include "core/FileList.h"

namespace nomra::core {

// Which rows the actions change.
enum ApplyScope : int {
  kScopeAll = 0,
  kScopeSelected = 1,
  kScopeUnselected = 2,
};

// The list's state: the rows, the scope the actions change, and what the
// last refresh counted. The window's own state (command states, labels,
// the views) lives in the shell.
struct ListState {
  explicit ListState(platform::FileSystem& caseRules) : list(caseRules) {}

  FileList list;
  int applyScope = kScopeAll;

  // Counted by the refresh.
  int changedCount = 0;
  int folderCount = 0;
  int undoLevels = 0;

  // In the picture view column 0 shows the new name below each picture.
  bool iconView = false;

  long addCounter = 0;     // calls of AddFile since start
  long statusCounter = 0;  // running number of the status panel
};

// Whether a row lies in the apply scope: all rows, the selected rows or the
// rows that aren't selected; no row for a scope that is none of these.
bool InScope(int applyScope, const FileEntry& row);
bool InScope(const ListState& state, int position);

}  // namespace nomra::core
