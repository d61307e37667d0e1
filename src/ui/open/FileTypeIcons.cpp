#include "ui/open/FileTypeIcons.h"

#include <QFileInfo>

#include "ui/common/TextConversion.h"

namespace nomra::ui {

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
