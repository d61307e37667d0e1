#pragma once
#include <QHash>
#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <string>

namespace nomra::ui {

// The pictures of the rows in the two icon views, kept under the file's key
// so that a refresh costs nothing for a row that has one. Pictures load when
// a view first asks for them, a few at a time between events, so a folder of
// 100,000 files shows at once and stays responsive; until its picture has
// loaded, and for good when it can't be loaded, a row shows "NoPic".
class ThumbnailCache final : public QObject {
  Q_OBJECT
 public:
  explicit ThumbnailCache(QObject* parent = nullptr);

  // The square size in pixels; a new size empties the cache.
  void SetSize(int pixels);
  int Size() const { return size_; }

  QIcon IconFor(const std::string& key);
  // Loads the picture now, without waiting for the queue (tests, the detail picture).
  QPixmap LoadNow(const QString& path);
  bool HasPicture(const QString& path) const { return pictures_.contains(path); }
  bool Failed(const QString& path) const { return failed_.contains(path); }
  void Clear();

  // An empty box with its two diagonals.
  static QPixmap DrawNoPic(int size);

 signals:
  // Pictures arrived; views repaint.
  void picturesLoaded();

 private:
  void LoadQueued();
  QPixmap Scaled(const QString& path) const;

  int size_ = 0;
  QHash<QString, QIcon> pictures_;
  QSet<QString> failed_;
  QSet<QString> queued_;
  QStringList queue_;
  QIcon noPic_;
  QTimer timer_;
};

}  // namespace nomra::ui
