#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// File extension: change it (optFE(1)), keep the old one in front
// (chkAddOldFE), or remove it (optFE(2)).
class FrmFileExtension final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmFileExtension(ActionWindowServices services);

 protected:
  void AfterInputsShown() override;

 private:
  void FollowChoice();
};

}  // namespace nomra::ui
