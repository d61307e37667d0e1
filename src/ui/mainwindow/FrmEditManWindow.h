#pragma once
#include <QDialog>

#include "lang/MessageCatalog.h"

class QLineEdit;

namespace nomra::ui {

// frmEditMan: the pending name of one row, typed by hand. The nine
// characters that never stand in a file name can't be typed.
class FrmEditManWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmEditManWindow(const QString& pendingName, const lang::MessageCatalog& catalog, QWidget* parent = nullptr);
  QString Text() const;

 private:
  QLineEdit* name_ = nullptr;
};

}  // namespace nomra::ui
