#pragma once
#include "commit/CommitBatch.h"

namespace nomra::commit {

// One row alone, without a plan and without a temporary name: its pending
// name becomes the name on disk, or a report row says why not. The history
// columns that hold a name take the new one; the row is not listed as
// renamed.
void CommitSingleRow(CommitBatch& batch, int position);

}  // namespace nomra::commit
