#include "commit/DiskRename.h"

namespace nomra::commit {

std::optional<base::Failure> RenameOnDisk(const CommitContext& context, const core::FileEntry& row,
                                          const std::string& from, const std::string& to) {
  const core::FileEntry* holder = context.List().Find(to);
  if (holder != nullptr && holder != &row) return base::Failure{base::FailureKind::TargetExists, {}};
  const platform::RenameResult renamed = context.fileSystem.RenameNoReplace(from, to);
  if (!renamed.ok) return FailureOfError(renamed.error);
  if (!context.fileSystem.ConfirmRenamed(from, to)) return OtherFailure(kRenameDidNothingText);
  return std::nullopt;
}

}  // namespace nomra::commit
