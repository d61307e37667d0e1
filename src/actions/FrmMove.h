#pragma once
#include <string>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Moving a slice of the stem (txtFrom to txtTo, 1-based and inclusive) to
// position txtPos of what is left, in every row of the scope, or with
// chkAdd2All off only in the row shown (VScroll1), whatever the scope.
// Its inputs are remembered under "FrmPS", the section of Prefix and
// suffix, yet read back from "frmMove": both kept on purpose, as scripts
// and settings files have them so.
class FrmMove final : public rename::ActionDialog {
 public:
  FrmMove();
  const rename::ActionTraits& Traits() const override;
  void Run(const rename::ActionContext& context) override;
};

// The name with characters `from` to `to` of its stem moved to position
// `position` of the rest; the extension stays. A from, to or position
// below 1 is a run-time fault; positions beyond the stem only give shorter
// pieces.
std::string MoveInName(const std::string& name, long from, long to, long position);
// The same on a stem alone, as the dialog's preview shows it.
std::string MoveInStem(const std::string& stem, long from, long to, long position);

}  // namespace nomra::actions
