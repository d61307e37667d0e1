#pragma once
#include "commit/CommitContext.h"
#include "commit/CommitResult.h"
#include "commit/CommitServices.h"

namespace nomra::commit {

// The user's answer to the not-renamed report. With removeRenamed each row
// listed as renamed leaves the list; a row listed under its temporary name
// no longer has that key and stays. The caller refreshes.
void ApplyNotRenamedChoice(const CommitContext& context, const CommitResult& result, bool removeRenamed);

// After a commit that left rows not renamed: shows the report through the
// services, when they can show it, and applies the choice.
void ShowNotRenamed(const CommitContext& context, const CommitResult& result, const CommitServices& services);

}  // namespace nomra::commit
