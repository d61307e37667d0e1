#include "ui/mainwindow/FileListModel.h"

#include <QMimeData>
#include <QUrl>

#include "core/FileEntry.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/ThumbnailCache.h"

namespace nomra::ui {

FileListModel::FileListModel(core::FileList& list, ThumbnailCache& thumbnails, QObject* parent)
    : QAbstractTableModel(parent), list_(list), thumbnails_(thumbnails) {}

int FileListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : list_.Count(); }

int FileListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kShownColumns; }

QVariant FileListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= list_.Count()) return {};
  const core::FileEntry& row = list_.Item(index.row() + 1);
  const int column = index.column();
  switch (role) {
    case Qt::DisplayRole: return ToQString(row[column]);
    case Qt::EditRole: return ToQString(row[core::kColNewName]);
    case Qt::ToolTipRole: return column == core::kColDisplay ? ToQString(row.key) : QVariant();
    case Qt::ForegroundRole:
      if (row.colour == core::RowColour::DarkRed) return PendingColour();
      return {};
    case Qt::DecorationRole:
      if (column == core::kColDisplay && showThumbnails_) return thumbnails_.IconFor(row.key);
      return {};
    case Qt::TextAlignmentRole:
      if (column == core::kColSize) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
      return {};
    default: return {};
  }
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section < 0 || section >= headers_.size()) return {};
  return headers_[section];
}

Qt::ItemFlags FileListModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsDropEnabled;
  if (!index.isValid()) return flags;
  flags |= Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
  if (inPlaceEditing_ && index.column() == core::kColDisplay) flags |= Qt::ItemIsEditable;
  return flags;
}

bool FileListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  emit labelEdited(index.row() + 1, value.toString());
  return true;
}

Qt::DropActions FileListModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction | Qt::LinkAction; }

Qt::DropActions FileListModel::supportedDragActions() const { return Qt::MoveAction; }

QStringList FileListModel::mimeTypes() const { return {kRowMimeType, QStringLiteral("text/uri-list")}; }

QMimeData* FileListModel::mimeData(const QModelIndexList& indexes) const {
  if (indexes.isEmpty()) return nullptr;
  auto* data = new QMimeData;
  data->setData(kRowMimeType, QByteArray::number(indexes.first().row() + 1));
  return data;
}

bool FileListModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex&) const {
  return data != nullptr && (data->hasFormat(kRowMimeType) || data->hasUrls());
}

bool FileListModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex& parent) {
  if (data == nullptr) return false;
  if (data->hasFormat(kRowMimeType)) {
    const int dragged = data->data(kRowMimeType).toInt();
    // The target is the row under the pointer; below the last row it is the last.
    int target = parent.isValid() ? parent.row() + 1 : (row >= 0 ? row + 1 : list_.Count());
    if (target > list_.Count()) target = list_.Count();
    if (dragged >= 1 && target >= 1) emit rowDropped(dragged, target);
    // The engine moves the row; Qt must not remove the dragged one as well.
    return false;
  }
  if (data->hasUrls()) {
    QStringList paths;
    for (const QUrl& url : data->urls()) {
      if (url.isLocalFile()) paths << LocalFilePath(url);
    }
    if (!paths.isEmpty()) emit pathsDropped(paths);
    return !paths.isEmpty();
  }
  return false;
}

void FileListModel::Reload() {
  beginResetModel();
  endResetModel();
}

void FileListModel::SetHeaderTexts(const QStringList& texts) {
  headers_ = texts;
  emit headerDataChanged(Qt::Horizontal, 0, kShownColumns - 1);
}

void FileListModel::SetShowThumbnails(bool show) { showThumbnails_ = show; }

void FileListModel::SetInPlaceEditing(bool editable) { inPlaceEditing_ = editable; }

}  // namespace nomra::ui
