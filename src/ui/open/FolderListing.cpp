#include "ui/open/FolderListing.h"

#include <QFileInfo>

#include <algorithm>

#include "base/CaseMap.h"
#include "base/Paths.h"
#include "open/FolderWalk.h"
#include "open/PowerFilters.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// The rows of one group in name order, by the engine's rule of case.
void SortByName(std::vector<std::string>& names) {
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return base::CompareNoCase(a, b) < 0; });
}

}  // namespace

std::vector<FolderRow> ListFolderRows(platform::FileSystem& fileSystem, const std::string& folder,
                                      const std::string& pattern, bool showHidden) {
  std::vector<std::string> folderNames;
  std::vector<std::string> fileNames;
  fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
    if (name == "." || name == "..") return;
    if (open::IsHiddenName(name) && !showHidden) return;
    if (kind == platform::EntryKind::Folder || kind == platform::EntryKind::FolderLink) {
      folderNames.emplace_back(name);
    } else if (kind == platform::EntryKind::File && open::PassesAnyPattern(name, pattern)) {
      fileNames.emplace_back(name);
    }
  });
  SortByName(folderNames);
  SortByName(fileNames);
  const std::string base = base::AddBackslash(folder);
  std::vector<FolderRow> rows;
  rows.reserve(folderNames.size() + fileNames.size());
  for (const std::string& name : folderNames) rows.push_back({base + name, ToQString(name), true});
  for (const std::string& name : fileNames) rows.push_back({name, ToQString(name), false});
  return rows;
}

QIcon FileTypeIcons::ClosedFolder() const { return provider_.icon(QAbstractFileIconProvider::Folder); }

QIcon FileTypeIcons::OpenFolder() const { return QIcon::fromTheme(QStringLiteral("folder-open"), ClosedFolder()); }

QIcon FileTypeIcons::Computer() const { return provider_.icon(QAbstractFileIconProvider::Computer); }

QIcon FileTypeIcons::Drive() const { return provider_.icon(QAbstractFileIconProvider::Drive); }

QIcon FileTypeIcons::Home() const { return QIcon::fromTheme(QStringLiteral("user-home"), ClosedFolder()); }

QIcon FileTypeIcons::ForFile(const QString& path) {
  const QString extension = QFileInfo(path).suffix().toUpper();
  auto known = byExtension_.constFind(extension);
  if (known != byExtension_.constEnd()) return *known;
  QIcon icon = provider_.icon(QFileInfo(path));
  // A type the desktop has no picture for shows as any file.
  if (icon.isNull()) icon = provider_.icon(QAbstractFileIconProvider::File);
  byExtension_.insert(extension, icon);
  return icon;
}

}  // namespace nomra::ui
