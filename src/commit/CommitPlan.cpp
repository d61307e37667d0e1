#include "commit/CommitPlan.h"

#include <cerrno>
#include <string>
#include <vector>

#include "base/Failure.h"
#include "base/Paths.h"

namespace nomra::commit {

namespace {

constexpr int kRowsPerPump = 100;

// Every folder of the list, and the names of the rows that keep theirs.
void ClaimStayingNames(core::FileList& list, OrderedPathMap& folders, PathMap& claimed) {
  list.ForEach([&](const core::FileEntry& row) {
    folders.Set(row[core::kColPath], row[core::kColPath]);
    if (row[core::kColOldName] == row[core::kColNewName]) claimed.Set(row.key, row.key);
  });
}

// The files of those folders whose names nobody keeps yet, in the order the
// folders list them; and all their files in `filesOnDisk`.
void CollectOtherFiles(CommitBatch& batch, const OrderedPathMap& folders, const PathMap& claimed,
                       OrderedPathMap& diskOthers, PathMap& filesOnDisk) {
  folders.ForEach([&](const std::string& folder) {
    batch.context.frontEnd.Pump();
    const std::string base = base::AddBackslash(folder);
    batch.context.fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
      if (kind != platform::EntryKind::File) return;
      std::string path = base + std::string(name);
      filesOnDisk.Set(path, {});
      if (!claimed.Contains(path)) diskOthers.Set(path, path);
    });
  });
}

// Pending rows whose file is not among the folders' files.
void FindVanishedRows(core::FileList& list, const OrderedPathMap& diskOthers, std::vector<std::string>& vanished) {
  list.ForEach([&](const core::FileEntry& row) {
    if (row.HasPendingChange() && !diskOthers.Contains(row.key)) vanished.push_back(row.key);
  });
}

// A row whose file is gone still holds its name in the list, and the list
// can't give one name to two rows: its name stays taken, like that of a file
// that stays where it is.
void HoldVanishedNames(const std::vector<std::string>& vanished, OrderedPathMap& diskOthers) {
  for (const std::string& key : vanished) diskOthers.Set(key, key);
}

// Each pending row in list order claims its new name; a row whose name is
// claimed already is blocked. A row that claims gives its old name up.
void ClaimNewNames(CommitBatch& batch, PathMap& claimed, OrderedPathMap& diskOthers, OrderedPathMap& blocked) {
  core::FileList& list = batch.context.List();
  for (int position = 1; position <= list.Count(); ++position) {
    if (position % kRowsPerPump == 0) batch.context.frontEnd.Pump();
    const core::FileEntry& row = list.Item(position);
    if (!row.HasPendingChange()) continue;
    const std::string target = row[core::kColPath] + row[core::kColNewName];
    if (claimed.Contains(target)) {
      blocked.Set(row.key, row.key);
      continue;
    }
    claimed.Set(target, row.key);
    if (!diskOthers.Erase(row.key)) batch.Fail(row.key, base::SystemFailure(ENOENT), "", "");
  }
}

// A file that stays where it is keeps its name from the row that claimed it:
// that row is blocked, and so its own old name stays taken in turn. Walking
// from the end until nothing is left spreads a block back along a chain.
void SettleOtherFiles(PathMap& claimed, OrderedPathMap& diskOthers, OrderedPathMap& blocked) {
  while (!diskOthers.Empty()) {
    const std::string staying = diskOthers.LastValue();
    if (const std::string* claimer = claimed.Find(staying)) {
      const std::string rowKey = *claimer;
      blocked.Set(rowKey, rowKey);
      diskOthers.Set(rowKey, rowKey);
      claimed.Set(staying, staying);
    }
    diskOthers.Erase(staying);
  }
}

}  // namespace

void PlanCommit(CommitBatch& batch, OrderedPathMap& blocked, PathMap& filesOnDisk) {
  OrderedPathMap folders(batch.keys);
  PathMap claimed(batch.keys);
  OrderedPathMap diskOthers(batch.keys);
  ClaimStayingNames(batch.context.List(), folders, claimed);
  CollectOtherFiles(batch, folders, claimed, diskOthers, filesOnDisk);
  std::vector<std::string> vanished;
  FindVanishedRows(batch.context.List(), diskOthers, vanished);
  ClaimNewNames(batch, claimed, diskOthers, blocked);
  HoldVanishedNames(vanished, diskOthers);
  SettleOtherFiles(claimed, diskOthers, blocked);
}

}  // namespace nomra::commit
