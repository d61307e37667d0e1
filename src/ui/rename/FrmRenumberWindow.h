#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Rename > Renumber: the numbers found, the names in numbering order and
// those left out, the new series. Only OK acts.
class FrmRenumberWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmRenumberWindow(ActionWindowServices services);

 protected:
  void AfterLocalised() override;
  void AfterInputsShown() override;

 private:
  // Runs an operation of the model on its lists and shows the result.
  void Change(const std::function<void()>& operation);
  void FollowSelection();
};

}  // namespace nomra::ui
