#pragma once
#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>

#include "core/FileList.h"

namespace nomra::ui {

class ThumbnailCache;

// The list of the main window as Qt sees it: a view over the engine's rows,
// never a copy of them. Qt column n shows column head n + 1, that is the
// row's column n (0 the icon-view text, 1 path, ... 7 size). Rows are read
// on demand, so 100,000 rows cost nothing until they scroll into sight.
class FileListModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  static constexpr int kShownColumns = 8;
  static constexpr char kRowMimeType[] = "application/x-nomra-row";

  FileListModel(core::FileList& list, ThumbnailCache& thumbnails, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  Qt::DropActions supportedDropActions() const override;
  Qt::DropActions supportedDragActions() const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                       const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

  // The engine changed rows, their order or their number.
  void Reload();
  void SetHeaderTexts(const QStringList& texts);
  // Thumbnails show in the first column of the two icon views.
  void SetShowThumbnails(bool show);
  // Names are edited in place in the icon view only.
  void SetInPlaceEditing(bool editable);

  static QColor PendingColour() { return QColor(128, 0, 0); }

 signals:
  // A row of the list was dragged onto another (1-based positions).
  void rowDropped(int dragged, int target);
  // Files or folders came from outside, e.g. a file manager.
  void pathsDropped(const QStringList& paths);
  // An in-place edit ended with this text (1-based position).
  void labelEdited(int position, const QString& text);

 private:
  core::FileList& list_;
  ThumbnailCache& thumbnails_;
  QStringList headers_;
  bool showThumbnails_ = false;
  bool inPlaceEditing_ = false;
};

}  // namespace nomra::ui
