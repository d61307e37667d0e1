#include "open/FolderRows.h"

#include <algorithm>

#include "base/CaseMap.h"
#include "base/Paths.h"
#include "open/FolderWalk.h"
#include "open/PowerFilters.h"

namespace nomra::open {

namespace {

// The rows of one group in name order, by the engine's rule of case.
void SortByName(std::vector<std::string>& names) {
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return base::CompareNoCase(a, b) < 0; });
}

// Without a separator at the end, except for the root itself.
std::string Trimmed(std::string path) {
  while (path.size() > 1 && path.back() == base::kPathSeparator) path.pop_back();
  return path;
}

}  // namespace

std::vector<FolderRow> ListFolderRows(platform::FileSystem& fileSystem, const std::string& folder,
                                      const std::string& pattern, bool showHidden) {
  std::vector<std::string> folderNames;
  std::vector<std::string> fileNames;
  fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
    if (name == "." || name == "..") return;
    if (IsHiddenName(name) && !showHidden) return;
    if (kind == platform::EntryKind::Folder || kind == platform::EntryKind::FolderLink) {
      folderNames.emplace_back(name);
    } else if (kind == platform::EntryKind::File && PassesAnyPattern(name, pattern)) {
      fileNames.emplace_back(name);
    }
  });
  SortByName(folderNames);
  SortByName(fileNames);
  const std::string base = base::AddBackslash(folder);
  std::vector<FolderRow> rows;
  rows.reserve(folderNames.size() + fileNames.size());
  for (const std::string& name : folderNames) rows.push_back({base + name, name, true});
  for (const std::string& name : fileNames) rows.push_back({name, name, false});
  return rows;
}

std::string ParentFolder(const std::string& path) {
  if (path == "/") return {};
  return Trimmed(base::FolderOf(path));
}

std::string NearestExistingFolder(platform::FileSystem& fileSystem, const std::string& path) {
  std::string folder = path.empty() ? std::string() : Trimmed(fileSystem.AbsolutePath(path));
  while (!folder.empty() && fileSystem.Status(folder).kind != platform::EntryKind::Folder) {
    folder = ParentFolder(folder);
  }
  return folder;
}

}  // namespace nomra::open
