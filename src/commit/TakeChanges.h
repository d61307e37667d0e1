#pragma once
#include <optional>
#include <string_view>

#include "commit/CommitContext.h"
#include "commit/CommitResult.h"
#include "commit/CommitServices.h"
#include "core/Preview.h"

namespace nomra::commit {

// The take-changes button and menu entry, by the button's Tag. "TakeChanges1"
// (or no tag) takes every pending change to disk, after asking when the
// second security question is on, shows what wasn't renamed and refreshes.
// "TakeChanges2" hands over to frmSelAction, whose OK copies or moves and
// renames; any other tag does nothing. Nothing comes back when no commit of
// the whole list ran here.
std::optional<CommitResult> takeChanges(const CommitContext& context, core::Preview& preview, std::string_view tag,
                                        const CommitServices& services = {});

}  // namespace nomra::commit
