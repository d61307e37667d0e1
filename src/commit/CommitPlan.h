#pragma once
#include "commit/CommitBatch.h"
#include "commit/CommitSets.h"

namespace nomra::commit {

// Decides, before anything is renamed, which rows of the whole list must not
// be: a row whose new name another row keeps or claims first, or a file
// outside the list holds, and then every row that waits on such a row for
// its name to become free. Puts them into `blocked` by key, in the order
// they were found. A pending row whose file is gone from its folder is
// reported (without names) and still tried later; its name stays taken.
// Every file found in the list's folders goes into `filesOnDisk`, so that
// the execution can foresee its temporary names without listing again.
void PlanCommit(CommitBatch& batch, OrderedPathMap& blocked, PathMap& filesOnDisk);

}  // namespace nomra::commit
