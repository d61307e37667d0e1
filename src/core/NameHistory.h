#pragma once

#include "core/ListContext.h"

namespace nomra::core {

// One step back in the pending names of every row, whatever the scope.
// Asks first with `askFirst` (the first security question). Returns whether
// the step was taken.
bool mnuUndo(const ListContext& context, bool askFirst);

// Every pending name back to the old name; the history is wiped too.
// Asks first with `askFirst` (the third security question).
bool mnuRejectChanges(const ListContext& context, bool askFirst);

}  // namespace nomra::core
