#pragma once
#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// Upper and lower case: the conversion (opt1) and what it applies to (opt2).
class FrmULCaseWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmULCaseWindow(ActionWindowServices services);

 protected:
  void AfterLocalised() override;
};

}  // namespace nomra::ui
