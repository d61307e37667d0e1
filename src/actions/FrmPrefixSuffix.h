#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Prefix and suffix: txtPr before the stem, txtSu between stem and
// extension. Tags are not evaluated; both empty leaves each name as it is.
class FrmPrefixSuffix final : public rename::ActionDialog {
 public:
  FrmPrefixSuffix();
  const rename::ActionTraits& Traits() const override;
  void Run(const rename::ActionContext& context) override;
};

// prefix + stem + suffix + extension.
std::string AddPrefixAndSuffix(std::string_view name, std::string_view prefix, std::string_view suffix);

// The two labels taken from the dialog's localised caption, as in
// "Prefix/Suffix (All files)": all before the first "/" and ":", then all
// between that "/" and the next blank, and ":". Nothing when the caption
// holds no "/", so the labels keep their own texts.
std::optional<std::pair<std::string, std::string>> PrefixSuffixLabels(std::string_view caption);

}  // namespace nomra::actions
