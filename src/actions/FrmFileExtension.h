#pragma once
#include <string>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// File extension: optFE(1) changes it to txtFE (behind the old one when
// chkAddOldFE is on), optFE(2) removes the last one.
class FrmFileExtension final : public rename::ActionDialog {
 public:
  FrmFileExtension();
  const rename::ActionTraits& Traits() const override;
  // Cleans txtFE (blanks around it, then its leading dots), writes it back
  // and applies the structure.
  void Run(const rename::ActionContext& context) override;

  // The structure of the inputs as they stand.
  std::string Structure() const;
  // Whether chkAddOldFE and txtFE take input: only while changing.
  bool ChangeInputsEnabled() const;
};

// txtFE without the blanks around it and without its leading dots.
std::string CleanExtensionInput(std::string_view text);

}  // namespace nomra::actions
