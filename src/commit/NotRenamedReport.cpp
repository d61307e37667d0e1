#include "commit/NotRenamedReport.h"

#include <unordered_set>

namespace nomra::commit {

void ApplyNotRenamedChoice(const CommitContext& context, const CommitResult& result, bool removeRenamed) {
  if (!removeRenamed || result.renamed.empty()) return;
  std::unordered_set<const core::FileEntry*> renamedRows;
  for (const std::string& key : result.renamed) {
    if (const core::FileEntry* row = context.List().Find(key)) renamedRows.insert(row);
  }
  context.List().RemoveWhere([&](const core::FileEntry& row) { return renamedRows.contains(&row); });
}

void ShowNotRenamed(const CommitContext& context, const CommitResult& result, const CommitServices& services) {
  if (result.notRenamed.empty() || !services.showNotRenamed) return;
  const NotRenamedChoice choice = services.showNotRenamed(result);
  ApplyNotRenamedChoice(context, result, choice == NotRenamedChoice::RemoveRenamed);
}

}  // namespace nomra::commit
