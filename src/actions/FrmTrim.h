#pragma once
#include <string>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Trimming names: keep the first, the last or a range of characters of the
// stem, take the short name, or cut the stem so that folder and name stay
// within a length. The first four are structures of the structure language.
class FrmTrim final : public rename::ActionDialog {
 public:
  FrmTrim();
  const rename::ActionTraits& Traits() const override;
  void Run(const rename::ActionContext& context) override;

  // The structure the chosen button stands for; "" for the path limit.
  std::string Structure() const;
  bool IsEnabled(std::string_view key) const;
};

// The name cut to the path limit: when folder and name together are longer
// than `limit` characters, the stem keeps `limit` less the folder and the
// extension's letters (without its dot), at least none; folder and
// extension are never cut, so the limit can still be missed.
std::string TrimToPathLimit(const std::string& folder, const std::string& name, long limit);

}  // namespace nomra::actions
