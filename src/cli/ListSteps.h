#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "cli/ArgumentValues.h"
#include "cli/CliSession.h"

namespace nomra::cli {

// What the options that act on the list do. Each leaves the list refreshed.

// From now on exactly the rows whose name on disk matches one of the
// wildcards (case ignored) are selected.
void SelectMatching(CliSession& session, const std::vector<std::string>& patterns);

// Which rows the name-changing steps that follow act on.
void SetApplyScope(CliSession& session, int scope);

void SortByColumnHead(CliSession& session, const SortRequest& request);

// The undo and reject commands, or a note where the window would have them
// greyed out.
void UndoOneStep(CliSession& session, std::ostream& notes);
void RejectPendingChanges(CliSession& session, std::ostream& notes);

}  // namespace nomra::cli
