#include "open/FolderWalk.h"

#include "base/Paths.h"

namespace nomra::open {

bool IsHiddenName(std::string_view name) { return !name.empty() && name.front() == '.'; }

bool WalkFolders(platform::FileSystem& fileSystem, std::vector<std::string> workList, bool descend,
                 const FolderVisitor& visit) {
  // The list grows while it is walked, so it goes by position, never by
  // iterator.
  for (std::size_t position = 0; position < workList.size(); ++position) {
    const std::string folder = base::AddBackslash(workList[position]);
    std::vector<std::string> fileNames;
    std::vector<std::string> subfolders;
    // The names are collected first: the visitor adds files, which may pump
    // events, and the folder shouldn't stay open meanwhile.
    const bool readable = fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
      if (kind == platform::EntryKind::File) {
        fileNames.emplace_back(name);
      } else if (kind == platform::EntryKind::Folder) {
        subfolders.push_back(folder + std::string(name) + base::kPathSeparator);
      }
    });
    if (!readable) continue;
    if (!visit(position, folder, fileNames)) return false;
    if (descend) workList.insert(workList.end(), subfolders.begin(), subfolders.end());
  }
  return true;
}

}  // namespace nomra::open
