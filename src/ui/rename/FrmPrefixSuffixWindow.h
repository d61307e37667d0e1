#pragma once
#include "ui/rename/ActionDialogWindow.h"

class QLabel;

namespace nomra::ui {

// Prefix and suffix: txtPr and txtSu, with labels cut from the caption.
class FrmPrefixSuffixWindow final : public ActionDialogWindow {
  Q_OBJECT
 public:
  explicit FrmPrefixSuffixWindow(ActionWindowServices services);

 protected:
  void AfterLocalised() override;

 private:
  QLabel* prefixLabel_ = nullptr;  // lblPrefix
  QLabel* suffixLabel_ = nullptr;  // lblSuffix
};

}  // namespace nomra::ui
