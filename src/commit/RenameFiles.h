#pragma once
#include "base/LocalClock.h"
#include "commit/CommitContext.h"
#include "commit/CommitResult.h"

namespace nomra::commit {

// The position that asks for the whole list.
inline constexpr int kWholeList = -1;

// Takes the pending names to disk. With kWholeList every pending row, in one
// planned batch: chains, swaps and cycles go through temporary names, and a
// row whose new name stays taken is not renamed. With a position, that row
// alone. No file is ever replaced. Each rename is written to the protocol
// when renames are logged. Returns the rows not renamed and the keys renamed;
// the caller refreshes the list.
CommitResult mdlRenameFiles(const CommitContext& context, int position,
                            const base::LocalClock& clock = base::LocalTimeNow);

}  // namespace nomra::commit
