#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Rename > Trim: a part of the stem, the short name, or a path limit.
class FrmTrimWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmTrimWindow(ActionWindowServices services);

 protected:
  void AfterInputsShown() override;

 private:
  void FollowChoice();
  void cmdGetPos();
};

}  // namespace nomra::ui
