#include "fileops/DeleteListFiles.h"

#include <vector>

#include "base/Paths.h"
#include "fileops/FileListOperations.h"
#include "fileops/PathList.h"
#include "rename/ActionScope.h"

namespace nomra::fileops {

bool DeleteListFiles(const core::ListContext& context, bool expertMode, bool toTrash, OperationServices& services) {
  if (!expertMode) return false;
  core::FileList& list = context.List();
  std::vector<std::string> paths;
  for (int row = 1; row <= list.Count(); ++row) {
    if (!core::InScope(context.state, row)) continue;
    const core::FileEntry& entry = list.Item(row);
    paths.push_back(base::AddBackslash(entry[core::kColPath]) + entry[core::kColOldName]);
  }
  DeleteFileList(JoinPathList(paths), toTrash, true, services);
  // Rows follow the disk, not the command.
  for (const std::string& path : paths) {
    if (services.fileSystem.Status(path).kind != platform::EntryKind::Missing) continue;
    if (core::FileEntry* entry = list.Find(path)) list.Remove(entry->position);
  }
  context.preview.Refresh();
  return true;
}

}  // namespace nomra::fileops
