#pragma once
#include "ui/rename/ActionDialogWindow.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace nomra::ui {

// File extension: change it (optFE(1)), keep the old one in front
// (chkAddOldFE), or remove it (optFE(2)).
class FrmFileExtensionWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmFileExtensionWindow(ActionWindowServices services);

 protected:
  void AfterInputsShown() override;

 private:
  void FollowChoice();

  QRadioButton* change_ = nullptr;  // optFE(1)
  QLineEdit* extension_ = nullptr;  // txtFE
  QCheckBox* keepOld_ = nullptr;    // chkAddOldFE
};

}  // namespace nomra::ui
