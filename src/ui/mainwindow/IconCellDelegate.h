#pragma once
#include <QStyledItemDelegate>

namespace nomra::ui {

// Draws a row of the picture layout in a cell of fixed size: the picture
// above, the name wrapped below it.
class IconCellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void SetCellSize(QSize size) { cell_ = size; }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return cell_.isValid() ? cell_ : QStyledItemDelegate::sizeHint(option, index);
  }

 private:
  QSize cell_;
};

}  // namespace nomra::ui
