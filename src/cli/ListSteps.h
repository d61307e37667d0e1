#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "cli/ArgumentValues.h"
#include "core/MainModel.h"

namespace nomra::cli {

// What the options that act on the list do. Each leaves the list refreshed.

// From now on exactly the rows whose name on disk matches one of the
// wildcards (case ignored) are selected.
void SelectMatching(MainModel& model, const std::vector<std::string>& patterns);

// Which rows the name-changing steps that follow act on.
void SetApplyScope(MainModel& model, int scope);

void SortByColumnHead(MainModel& model, const SortRequest& request);

// The undo and reject commands, or a note where the window would have them
// greyed out.
void UndoOneStep(MainModel& model, std::ostream& notes);
void RejectPendingChanges(MainModel& model, std::ostream& notes);

}  // namespace nomra::cli
