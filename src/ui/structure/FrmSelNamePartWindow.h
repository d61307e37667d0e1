#pragma once
#include <QDialog>
#include <QPointer>

#include "structure/FrmSelNamePart.h"
#include "ui/rename/ActionDialogWindow.h"

class QLineEdit;
class QPushButton;

namespace nomra::ui {

// frmSelNamePart: builds a <NamePart( tag for a target text box, which it
// reads at opening and writes on OK.
class FrmSelNamePartWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmSelNamePartWindow(QLineEdit& target, const ActionWindowServices& services);

  structure::FrmSelNamePart& Picker() { return picker_; }

  void cmdOK();

 private:
  void ShowPicker();

  structure::FrmSelNamePart picker_;
  QPointer<QLineEdit> target_;
  QPushButton* ok_ = nullptr;
};

// Opens frmSelNamePart modally for the target and returns when it has closed.
void OpenSelNamePart(QLineEdit& target, const ActionWindowServices& services);

}  // namespace nomra::ui
