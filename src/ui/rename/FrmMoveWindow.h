#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Rename > Move: select characters of a name shown and move them to a
// position, shown at once in the preview.
class FrmMoveWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmMoveWindow(ActionWindowServices services);

 protected:
  void AfterInputsShown() override;

 private:
  void ShowRow(int row);
  void SelectionMoved();
  void UpdatePreview();
};

}  // namespace nomra::ui
