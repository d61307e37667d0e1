#include "cli/ListSteps.h"

#include "base/Wildcard.h"
#include "core/NameHistory.h"
#include "core/RefreshPreview.h"
#include "core/SortFileList.h"

namespace nomra::cli {

namespace {

bool MatchesAny(const std::string& name, const std::vector<std::string>& patterns) {
  for (const std::string& pattern : patterns) {
    if (text::MatchesWildcard(name, pattern)) return true;
  }
  return false;
}

}  // namespace

void SelectMatching(MainModel& model, const std::vector<std::string>& patterns) {
  model.list.ForEach([&](FileEntry& row) { row.selected = MatchesAny(row[kColOldName], patterns); });
  refreshPreview(model);
}

void SetApplyScope(MainModel& model, int scope) {
  model.applyScope = scope;
  refreshPreview(model);
}

void SortByColumnHead(MainModel& model, const SortRequest& request) {
  model.list.sortOrder = request.order;
  sortFileList(model, request.columnHead);
  refreshPreview(model);
}

// mnuUndo and mnuRejectChanges refresh on their own.
void UndoOneStep(MainModel& model, std::ostream& notes) {
  if (model.undoLevels == 0) {
    notes << "nomra-cli: nothing to undo\n";
    return;
  }
  mnuUndo(model);
}

void RejectPendingChanges(MainModel& model, std::ostream& notes) {
  if (model.changedCount == 0) {
    notes << "nomra-cli: no pending changes to reject\n";
    return;
  }
  mnuRejectChanges(model);
}

}  // namespace nomra::cli
