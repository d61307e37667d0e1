#pragma once
#include <QFileIconProvider>
#include <QHash>
#include <QIcon>
#include <QString>

#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::ui {

// A row of Nomra's own open dialog: a folder, whose key is its full path, or
// a file, whose key is its bare name. Keys keep the bytes the file system
// gives, so a name that isn't valid UTF-8 still opens.
struct FolderRow {
  std::string key;
  QString text;
  bool folder = false;
};

// A folder's rows: its subfolders, then its files that pass the pattern (the
// checked filters joined by ";"), each group in name order without regard to
// case. Names beginning with "." are hidden files and stay out unless
// `showHidden`. An unreadable folder gives no rows.
std::vector<FolderRow> ListFolderRows(platform::FileSystem& fileSystem, const std::string& folder,
                                      const std::string& pattern, bool showHidden);

// The pictures of the rows. A file's picture comes from its type and is asked
// for once per upper-cased extension: a folder of a thousand pictures asks
// the desktop once, not a thousand times.
class FileTypeIcons {
 public:
  QIcon ClosedFolder() const;
  QIcon OpenFolder() const;
  QIcon Computer() const;
  QIcon Drive() const;
  QIcon Home() const;
  QIcon ForFile(const QString& path);

 private:
  QFileIconProvider provider_;
  QHash<QString, QIcon> byExtension_;
};

}  // namespace nomra::ui
