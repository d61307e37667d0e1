#include "commit/NotRenamedReport.h"

#include <unordered_set>

namespace nomra {

void ApplyNotRenamedChoice(MainModel& model, const CommitResult& result, bool removeRenamed) {
  if (!removeRenamed || result.renamed.empty()) return;
  std::unordered_set<const FileEntry*> renamedRows;
  for (const std::string& key : result.renamed) {
    if (const FileEntry* row = model.list.Find(key)) renamedRows.insert(row);
  }
  model.list.RemoveWhere([&](const FileEntry& row) { return renamedRows.contains(&row); });
}

void ShowNotRenamed(MainModel& model, const CommitResult& result, const CommitServices& services) {
  if (result.notRenamed.empty() || !services.showNotRenamed) return;
  const NotRenamedChoice choice = services.showNotRenamed(result);
  ApplyNotRenamedChoice(model, result, choice == NotRenamedChoice::RemoveRenamed);
}

}  // namespace nomra
