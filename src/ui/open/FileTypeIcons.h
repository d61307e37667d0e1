#pragma once
#include <QFileIconProvider>
#include <QHash>
#include <QIcon>
#include <QString>

namespace nomra::ui {

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
