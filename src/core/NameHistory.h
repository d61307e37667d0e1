#pragma once

#include "core/MainModel.h"

namespace nomra {

// One step back in the pending names of every row, whatever the scope.
// Asks first when the first security question is on. Returns whether the
// step was taken.
bool mnuUndo(MainModel& model);

// Every pending name back to the old name; the history is wiped too.
// Asks first when the third security question is on.
bool mnuRejectChanges(MainModel& model);

}  // namespace nomra
