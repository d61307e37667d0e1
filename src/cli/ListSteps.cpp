#include "cli/ListSteps.h"

#include "base/Wildcard.h"
#include "core/NameHistory.h"
#include "core/SortFileList.h"

namespace nomra::cli {

namespace {

bool MatchesAny(const std::string& name, const std::vector<std::string>& patterns) {
  for (const std::string& pattern : patterns) {
    if (base::MatchesWildcard(name, pattern)) return true;
  }
  return false;
}

}  // namespace

void SelectMatching(CliSession& session, const std::vector<std::string>& patterns) {
  session.state.list.ForEach(
      [&](core::FileEntry& row) { row.selected = MatchesAny(row[core::kColOldName], patterns); });
  session.preview.Refresh();
}

void SetApplyScope(CliSession& session, int scope) {
  session.state.applyScope = scope;
  session.preview.Refresh();
}

void SortByColumnHead(CliSession& session, const SortRequest& request) {
  session.state.list.sortOrder = request.order;
  core::sortFileList(session.state.list, session.frontEnd, request.columnHead);
  session.preview.Refresh();
}

// mnuUndo and mnuRejectChanges refresh on their own.
void UndoOneStep(CliSession& session, std::ostream& notes) {
  if (session.state.undoLevels == 0) {
    notes << "nomra-cli: nothing to undo\n";
    return;
  }
  core::mnuUndo(session.List(), session.options.securityQuestions[0]);
}

void RejectPendingChanges(CliSession& session, std::ostream& notes) {
  if (session.state.changedCount == 0) {
    notes << "nomra-cli: no pending changes to reject\n";
    return;
  }
  core::mnuRejectChanges(session.List(), session.options.securityQuestions[2]);
}

}  // namespace nomra::cli
