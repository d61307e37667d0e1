#include "commit/DiskRename.h"

namespace nomra {

std::optional<Failure> RenameOnDisk(MainModel& model, const FileEntry& row, const std::string& from,
                                    const std::string& to) {
  const FileEntry* holder = model.list.Find(to);
  if (holder != nullptr && holder != &row) return Failure{FailureKind::TargetExists, {}};
  const platform::RenameResult renamed = model.fileSystem.RenameNoReplace(from, to);
  if (!renamed.ok) return FailureOfError(renamed.error);
  if (!model.fileSystem.ConfirmRenamed(from, to)) return OtherFailure(kRenameDidNothingText);
  return std::nullopt;
}

}  // namespace nomra
