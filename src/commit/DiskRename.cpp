#include "commit/DiskRename.h"

namespace nomra {

std::optional<Failure> RenameOnDisk(const CommitContext& context, const FileEntry& row, const std::string& from,
                                    const std::string& to) {
  const FileEntry* holder = context.List().Find(to);
  if (holder != nullptr && holder != &row) return Failure{FailureKind::TargetExists, {}};
  const platform::RenameResult renamed = context.fileSystem.RenameNoReplace(from, to);
  if (!renamed.ok) return FailureOfError(renamed.error);
  if (!context.fileSystem.ConfirmRenamed(from, to)) return OtherFailure(kRenameDidNothingText);
  return std::nullopt;
}

}  // namespace nomra
