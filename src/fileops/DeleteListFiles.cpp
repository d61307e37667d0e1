#include "fileops/DeleteListFiles.h"

#include <vector>

#include "base/Paths.h"
#include "core/RefreshPreview.h"
#include "fileops/FileListOperations.h"
#include "fileops/PathList.h"
#include "rename/ActionScope.h"

namespace nomra::fileops {

bool DeleteListFiles(MainModel& model, bool toTrash, OperationServices& services) {
  if (!model.expertMode) return false;
  std::vector<std::string> paths;
  for (int row = 1; row <= model.list.Count(); ++row) {
    if (!InScope(model, row)) continue;
    const FileEntry& entry = model.list.Item(row);
    paths.push_back(AddBackslash(entry[kColPath]) + entry[kColOldName]);
  }
  DeleteFileList(JoinPathList(paths), toTrash, true, services);
  // Rows follow the disk, not the command.
  for (const std::string& path : paths) {
    if (model.fileSystem.Status(path).kind != platform::EntryKind::Missing) continue;
    if (FileEntry* entry = model.list.Find(path)) model.list.Remove(entry->position);
  }
  refreshPreview(model);
  return true;
}

}  // namespace nomra::fileops
