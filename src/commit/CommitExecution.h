#pragma once
#include <string_view>

#include "commit/CommitBatch.h"
#include "commit/CommitSets.h"

namespace nomra::commit {

// Appended to a new name whose file is still there when its row's turn
// comes (the row ahead in a chain hasn't moved yet, or only the case
// changes on a volume without case): "ÿ", U+00FF.
inline constexpr std::string_view kTemporaryMark = "\xC3\xBF";

// Renames every pending row of the list that the plan didn't block, in list
// order, through a temporary name where the new one is still taken; then
// gives the temporary names up; then reports each blocked row as a rename
// whose target exists. `filesOnDisk` holds the files the plan found in the
// list's folders; the temporary names foreseen from it are journaled with
// the plan.
void ExecuteCommit(CommitBatch& batch, const OrderedPathMap& blocked, const PathMap& filesOnDisk);

}  // namespace nomra::commit
