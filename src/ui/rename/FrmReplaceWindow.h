#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Rename > Replace: a text (or a regular expression), characters by
// position, or a set of characters, replaced or removed.
class FrmReplaceWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmReplaceWindow(ActionWindowServices services);

 protected:
  void AfterLocalised() override;
  void AfterInputsShown() override;

 private:
  void analyzeOptBtn();
  void cmdGetPos();
};

}  // namespace nomra::ui
