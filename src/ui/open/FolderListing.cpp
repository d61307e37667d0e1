#include "ui/open/FolderListing.h"

#include <QFileInfo>
#include <algorithm>

#include "base/Helpers.h"
#include "open/PowerFilters.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

bool IsHidden(std::string_view name) { return !name.empty() && name.front() == '.'; }

void SortByText(std::vector<FolderRow>& rows) {
  std::stable_sort(rows.begin(), rows.end(), [](const FolderRow& a, const FolderRow& b) {
    return QString::compare(a.text, b.text, Qt::CaseInsensitive) < 0;
  });
}

}  // namespace

std::vector<FolderRow> ListFolderRows(platform::FileSystem& fileSystem, const std::string& folder,
                                      const std::string& pattern, bool showHidden) {
  std::vector<FolderRow> folders;
  std::vector<FolderRow> files;
  const std::string base = AddBackslash(folder);
  fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
    if (name == "." || name == "..") return;
    if (IsHidden(name) && !showHidden) return;
    const QString text = ToQString(name);
    if (kind == platform::EntryKind::Folder || kind == platform::EntryKind::FolderLink) {
      folders.push_back({base + std::string(name), text, true});
    } else if (kind == platform::EntryKind::File && open::PassesAnyPattern(name, pattern)) {
      files.push_back({std::string(name), text, false});
    }
  });
  SortByText(folders);
  SortByText(files);
  folders.insert(folders.end(), files.begin(), files.end());
  return folders;
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
