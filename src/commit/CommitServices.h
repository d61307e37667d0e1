#pragma once
#include <functional>

#include "base/LocalClock.h"
#include "commit/CommitResult.h"

namespace nomra::commit {

// The two answers of the not-renamed report.
enum class NotRenamedChoice {
  NoAction,       // the default
  RemoveRenamed,  // the renamed rows leave the list, the others stay
};

// What a commit needs from outside the engine beyond the model.
struct CommitServices {
  base::LocalClock clock = base::LocalTimeNow;
  // Shows the report of a commit that left rows not renamed and returns the
  // user's choice; unset, the choice is NoAction.
  std::function<NotRenamedChoice(const CommitResult&)> showNotRenamed;
  // Shows frmSelAction for "TakeChanges2", which copies or moves the files
  // and renames the originals, the copies or both; unset, nothing happens.
  std::function<void()> showSelectAction;
};

}  // namespace nomra::commit
