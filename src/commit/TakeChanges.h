#pragma once
#include <optional>
#include <string_view>

#include "commit/CommitResult.h"
#include "commit/CommitServices.h"
#include "core/MainModel.h"

namespace nomra {

// The take-changes button and menu entry, by the button's Tag. "TakeChanges1"
// (or no tag) takes every pending change to disk, after asking when the
// second security question is on, shows what wasn't renamed and refreshes.
// "TakeChanges2" belongs to a dialog not built yet and does nothing, as does
// any other tag. Nothing comes back when nothing ran.
std::optional<CommitResult> takeChanges(MainModel& model, std::string_view tag, const CommitServices& services = {});

}  // namespace nomra
