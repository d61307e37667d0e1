#include "ui/mainwindow/ThumbnailCache.h"

#include <QElapsedTimer>
#include <QImageReader>
#include <QPainter>

#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// Keeps each pass short enough that scrolling never waits on a picture.
constexpr int kPassMilliseconds = 40;

}  // namespace

ThumbnailCache::ThumbnailCache(QObject* parent) : QObject(parent) {
  timer_.setSingleShot(true);
  timer_.setInterval(0);
  connect(&timer_, &QTimer::timeout, this, &ThumbnailCache::LoadQueued);
}

void ThumbnailCache::SetSize(int pixels) {
  if (pixels == size_) return;
  size_ = pixels;
  Clear();
}

void ThumbnailCache::Clear() {
  pictures_.clear();
  failed_.clear();
  queued_.clear();
  queue_.clear();
  noPic_ = size_ > 0 ? QIcon(DrawNoPic(size_)) : QIcon();
}

QIcon ThumbnailCache::IconFor(const std::string& key) {
  if (size_ <= 0) return {};
  const QString path = ToQString(key);
  const auto found = pictures_.constFind(path);
  if (found != pictures_.constEnd()) return *found;
  if (!failed_.contains(path) && !queued_.contains(path)) {
    queued_.insert(path);
    queue_.append(path);
    if (!timer_.isActive()) timer_.start();
  }
  return noPic_;
}

QPixmap ThumbnailCache::LoadNow(const QString& path) {
  const auto found = pictures_.constFind(path);
  if (found != pictures_.constEnd()) return found->pixmap(size_, size_);
  QPixmap picture = Scaled(path);
  if (picture.isNull()) {
    failed_.insert(path);
  } else {
    pictures_.insert(path, QIcon(picture));
  }
  return picture;
}

void ThumbnailCache::LoadQueued() {
  QElapsedTimer clock;
  clock.start();
  bool loaded = false;
  while (!queue_.isEmpty() && clock.elapsed() < kPassMilliseconds) {
    const QString path = queue_.takeFirst();
    queued_.remove(path);
    if (!LoadNow(path).isNull()) loaded = true;
  }
  if (!queue_.isEmpty()) timer_.start();
  if (loaded) emit picturesLoaded();
}

QPixmap ThumbnailCache::Scaled(const QString& path) const {
  if (size_ <= 0) return {};
  QImageReader reader(path);
  reader.setAutoTransform(true);
  if (!reader.canRead()) return {};
  QSize full = reader.size();
  if (full.isValid() && !full.isEmpty()) {
    // Decoding at the small size is what keeps large photographs cheap.
    reader.setScaledSize(full.scaled(size_, size_, Qt::KeepAspectRatio));
  }
  QImage image = reader.read();
  if (image.isNull()) return {};
  if (image.width() > size_ || image.height() > size_) {
    image = image.scaled(size_, size_, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  QPixmap square(size_, size_);
  square.fill(Qt::transparent);
  QPainter painter(&square);
  painter.drawImage((size_ - image.width()) / 2, (size_ - image.height()) / 2, image);
  return square;
}

QPixmap ThumbnailCache::DrawNoPic(int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setPen(QPen(Qt::gray, 1));
  painter.drawRect(0, 0, size - 1, size - 1);
  painter.drawLine(0, 0, size - 1, size - 1);
  painter.drawLine(0, size - 1, size - 1, 0);
  return picture;
}

}  // namespace nomra::ui
