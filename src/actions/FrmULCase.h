#pragma once
#include <string>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Upper and lower case: opt1(1..5) chooses the conversion ("1C", "WC",
// "UC", "LC", "SC"), opt2(1..3) whether it applies to the name, the
// extension or each of them apart.
class FrmULCase final : public rename::ActionDialog {
 public:
  FrmULCase();
  const rename::ActionTraits& Traits() const override;
  void Run(const rename::ActionContext& context) override;

  // The structure the chosen buttons stand for.
  std::string Structure() const;
};

}  // namespace nomra::actions
