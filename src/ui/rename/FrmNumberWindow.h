#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Rename > Numbering: start, step, system, width, place and separator.
class FrmNumberWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmNumberWindow(ActionWindowServices services);

 protected:
  void AfterLocalised() override;
  void AfterInputsShown() override;

 private:
  void FollowChoices();
  void StartEdited();
  void ShownStartEdited();
  void SystemChosen();
  void cmdGetPos();
};

}  // namespace nomra::ui
