#include "commit/SingleRowCommit.h"

#include "base/Fault.h"
#include "base/Paths.h"
#include "commit/DiskRename.h"

namespace nomra::commit {

namespace {

// Returns whether the rename failed.
bool RenamePendingRow(CommitBatch& batch, core::FileEntry& row) {
  const std::string folder = base::AddBackslash(row[core::kColPath]);
  const std::string src = folder + row[core::kColOldName];
  const std::string dst = folder + row[core::kColNewName];
  std::optional<base::Failure> failure = RefuseName(row[core::kColNewName]);
  if (!failure) {
    // One row never goes through a temporary name; its journal lets a start
    // after a crash tell the user if the file is under neither name.
    batch.BeginJournal({{src, dst}});
    failure = RenameOnDisk(batch.context, row, src, dst);
    batch.FinishJournal();
  }
  if (failure) {
    batch.Fail(row.key, *failure, src, dst);
    return true;
  }
  batch.RecordRename(row);
  // RenameOnDisk refuses a name another row holds, so this can't fail.
  if (!batch.context.List().ChangeKey(row, dst)) throw base::RuntimeFault("Two rows of the list came to hold " + dst);
  row[core::kColOldName] = row[core::kColNewName];
  return false;
}

}  // namespace

void CommitSingleRow(CommitBatch& batch, int position) {
  core::FileEntry& row = batch.context.List().Item(position);
  const bool failed = row.HasPendingChange() && RenamePendingRow(batch, row);
  if (failed) return;
  for (int column = core::kColHistory0; column <= core::kColHistoryLast; ++column) {
    if (!row[column].empty()) row[column] = row[core::kColNewName];
  }
}

}  // namespace nomra::commit
