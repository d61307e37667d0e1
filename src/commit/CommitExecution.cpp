#include "commit/CommitExecution.h"

#include <optional>
#include <vector>

#include "base/Fault.h"
#include "base/Paths.h"
#include "commit/DiskRename.h"

namespace nomra::commit {

namespace {

constexpr int kRowsPerPump = 100;

void ChangeKeyOrFault(core::FileList& list, core::FileEntry& row, const std::string& key) {
  // RenameOnDisk refuses a name another row holds, so this can't fail.
  if (!list.ChangeKey(row, key)) throw base::RuntimeFault("Two rows of the list came to hold " + key);
}

// The row's columns after its file was renamed: the new name is the name on
// disk, and the history of pending names starts again from it.
void TakeNewName(core::FileEntry& row) {
  row[core::kColOldName] = row[core::kColNewName];
  row[core::kColHistory0] = row[core::kColNewName];
  for (int column = core::kColHistoryFirst; column <= core::kColHistoryLast; ++column) row[column].clear();
}

void ShowProgress(const CommitContext& context) {
  ++context.state.statusCounter;
  context.frontEnd.SetStatusText(context.texts.renamed + " " + std::to_string(context.state.statusCounter));
}

void RenameRow(CommitBatch& batch, core::FileEntry& row, const PathMap& foreseen, OrderedPathMap& temporaries) {
  const CommitContext& context = batch.context;
  const std::string folder = base::AddBackslash(row[core::kColPath]);
  const std::string src = folder + row[core::kColOldName];
  std::string dst = folder + row[core::kColNewName];
  if (const auto refused = RefuseName(row[core::kColNewName])) {
    batch.Fail(row.key, *refused, src, dst);
    return;
  }
  // The rename never replaces a file, so it is tried under the final name
  // first: a name that is still taken answers "exists", and only then is the
  // disk asked whether a file stands there (the row ahead in a chain that
  // hasn't moved yet, or a change of case alone), which sends the row
  // through a temporary name. A plain batch thus costs one call per row.
  std::optional<base::Failure> failure = RenameOnDisk(context, row, src, dst);
  if (failure && failure->kind == base::FailureKind::TargetExists &&
      context.fileSystem.Status(dst).kind == platform::EntryKind::File) {
    const std::string final = dst;
    dst += kTemporaryMark;
    temporaries.Set(dst, dst);
    // A foreseen move is in the journal already. Only one the disk brought
    // about since the plan costs a flush of its own here. A file already
    // there under the temporary name is none of this batch's (the move will
    // fail); journaled, a later start would take it for ours.
    if (!foreseen.Contains(dst) && context.fileSystem.Status(dst).kind == platform::EntryKind::Missing) {
      batch.JournalTemporary(src, dst, final);
    }
    failure = RenameOnDisk(context, row, src, dst);
  }
  if (failure) {
    batch.Fail(row.key, *failure, src, dst);
    return;
  }
  ShowProgress(context);
  batch.RecordRename(row);
  ChangeKeyOrFault(context.List(), row, dst);
  batch.result.renamed.push_back(row.key);
  TakeNewName(row);
}

// Source and final path of every row the batch will try to rename.
std::vector<JournalPlanEntry> PlannedRenames(core::FileList& list, const OrderedPathMap& blocked) {
  std::vector<JournalPlanEntry> plan;
  list.ForEach([&](const core::FileEntry& row) {
    if (!row.HasPendingChange() || blocked.Contains(row.key)) return;
    const std::string folder = base::AddBackslash(row[core::kColPath]);
    plan.push_back({folder + row[core::kColOldName], folder + row[core::kColNewName]});
  });
  return plan;
}

// The moves to temporary names the batch will make, foreseen by running
// its renames over the names the plan found on disk: a row whose new name
// is still taken when its turn comes (by the file of a row that comes
// later, or by its own file when only the case changes where case doesn't
// count) goes through a temporary name. Each foreseen name also goes into
// `foreseen`. Where the disk changes after the plan, the renames find out
// themselves and journal what wasn't foreseen.
// Whether any row that will be renamed wants a name that stands on disk. If
// none does, no temporary name can come: during the batch a name is taken
// only by another row's new name, and two rows never get the same one.
bool AnyTargetOnDisk(core::FileList& list, const OrderedPathMap& blocked, const PathMap& filesOnDisk) {
  bool found = false;
  list.ForEach([&](const core::FileEntry& row) {
    if (found || !row.HasPendingChange() || blocked.Contains(row.key) || RefuseName(row[core::kColNewName])) return;
    found = filesOnDisk.Contains(base::AddBackslash(row[core::kColPath]) + row[core::kColNewName]);
  });
  return found;
}

std::vector<JournalTemporaryEntry> ForeseeTemporaries(CommitBatch& batch, const OrderedPathMap& blocked,
                                                      const PathMap& filesOnDisk, PathMap& foreseen) {
  std::vector<JournalTemporaryEntry> temporaries;
  // A plain batch (every new name free) spares the copy of the names and the run.
  if (!AnyTargetOnDisk(batch.context.List(), blocked, filesOnDisk)) return temporaries;
  PathMap taken = filesOnDisk;
  core::FileList& list = batch.context.List();
  for (int position = 1; position <= list.Count(); ++position) {
    if (position % kRowsPerPump == 0) batch.context.frontEnd.Pump();
    const core::FileEntry& row = list.Item(position);
    if (!row.HasPendingChange() || blocked.Contains(row.key)) continue;
    // A refused name is never tried: the file keeps its old one.
    if (RefuseName(row[core::kColNewName])) continue;
    const std::string folder = base::AddBackslash(row[core::kColPath]);
    const std::string src = folder + row[core::kColOldName];
    const std::string final = folder + row[core::kColNewName];
    // A file gone since the plan moves nowhere; its rename fails and is
    // reported.
    if (!taken.Contains(src)) continue;
    std::string dst = final;
    if (taken.Contains(final)) {
      dst += kTemporaryMark;
      // A file under the temporary name when the plan listed the folder is
      // none of this batch's and is never journaled; one this run put there
      // means the move would fail. Either way the file stays where it is.
      if (filesOnDisk.Contains(dst) || taken.Contains(dst)) continue;
      temporaries.push_back({src, dst, final});
      foreseen.Set(dst, {});
    }
    taken.Erase(src);
    taken.Set(dst, {});
  }
  // The temporary names become final after the loop; no move to a
  // temporary name comes after that, so the run stops here.
  return temporaries;
}

void RenamePendingRows(CommitBatch& batch, const OrderedPathMap& blocked, const PathMap& foreseen,
                       OrderedPathMap& temporaries) {
  core::FileList& list = batch.context.List();
  for (int position = 1; position <= list.Count(); ++position) {
    if (position % kRowsPerPump == 0) batch.context.frontEnd.Pump();
    core::FileEntry& row = list.Item(position);
    if (!row.HasPendingChange() || blocked.Contains(row.key)) continue;
    RenameRow(batch, row, foreseen, temporaries);
  }
}

// Each temporary name loses its mark. The key of the row changes with it;
// the list of renamed keys keeps the temporary form.
void ReleaseTemporaryNames(CommitBatch& batch, const OrderedPathMap& temporaries) {
  core::FileList& list = batch.context.List();
  temporaries.ForEach([&](const std::string& temporary) {
    const std::string final = temporary.substr(0, temporary.size() - kTemporaryMark.size());
    core::FileEntry* row = list.Find(temporary);
    if (row == nullptr) {
      // The move into the temporary name failed and was reported. A file of
      // that name would be none of the list's, so it is left alone and the
      // rename reported as the missing file it would have met.
      batch.Fail("", base::Failure{base::FailureKind::PathNotUsable, {}}, temporary, final);
      return;
    }
    if (const auto failure = RenameOnDisk(batch.context, *row, temporary, final)) {
      batch.Fail(row->key, *failure, temporary, final);
      return;
    }
    ChangeKeyOrFault(list, *row, final);
  });
}

// The key of each report row comes from the row at the running number of
// the blocked list, not from the blocked row itself; nothing but the report
// reads it.
void ReportBlockedRows(CommitBatch& batch, const OrderedPathMap& blocked) {
  core::FileList& list = batch.context.List();
  int number = 0;
  blocked.ForEach([&](const std::string& key) {
    ++number;
    const core::FileEntry* row = list.Find(key);
    const std::string dst =
        row == nullptr ? std::string() : base::AddBackslash((*row)[core::kColPath]) + (*row)[core::kColNewName];
    const std::string reportKey = number <= list.Count() ? list.Item(number).key : key;
    batch.Fail(reportKey, base::Failure{base::FailureKind::TargetExists, {}}, key, dst);
  });
}

}  // namespace

void ExecuteCommit(CommitBatch& batch, const OrderedPathMap& blocked, const PathMap& filesOnDisk) {
  PathMap foreseen(batch.keys);
  const std::vector<JournalTemporaryEntry> foreseenMoves = ForeseeTemporaries(batch, blocked, filesOnDisk, foreseen);
  batch.BeginJournal(PlannedRenames(batch.context.List(), blocked), foreseenMoves);
  OrderedPathMap temporaries(batch.keys);
  RenamePendingRows(batch, blocked, foreseen, temporaries);
  ReleaseTemporaryNames(batch, temporaries);
  // Every file is under its final name or its old one now. A batch cut
  // short by an exception never gets here and leaves the journal for the
  // next start.
  batch.FinishJournal();
  ReportBlockedRows(batch, blocked);
}

}  // namespace nomra::commit
