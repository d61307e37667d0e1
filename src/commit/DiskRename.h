#pragma once
#include <optional>
#include <string>

#include "commit/CommitContext.h"
#include "commit/RenameFailure.h"

namespace nomra::commit {

// The one rename of a commit: `row`'s file from `from` to `to`, never over
// another file, confirmed on disk afterwards. Nothing when it worked.
// A name another row of the list still holds is refused as taken even when
// no file is there (that row's file has vanished): the list could not give
// two rows one key, and the other row's rename would take this file along.
std::optional<base::Failure> RenameOnDisk(const CommitContext& context, const core::FileEntry& row,
                                          const std::string& from, const std::string& to);

// The reason recorded when the file system reports success and the old name
// is still there.
inline constexpr char kRenameDidNothingText[] = "the file system reported success but the name did not change";

}  // namespace nomra::commit
