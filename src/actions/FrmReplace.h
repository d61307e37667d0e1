#pragma once
#include <string>
#include <string_view>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Replace and remove: in the stem of each pending name, a text (or, with
// chkRegExp, a regular expression), characters by position, each character
// of a set, or every character outside one, is replaced by txtRepBy or
// removed. The extension is never touched; a stem that would become empty
// stays as it was; a name that then holds "<" goes through the structure
// language, so a replacement can bring in tags.
class FrmReplace final : public rename::ActionDialog {
 public:
  FrmReplace();
  const rename::ActionTraits& Traits() const override;
  bool CheckInputs(const rename::ActionContext& context) override;
  void Run(const rename::ActionContext& context) override;

  // The inputs that the option buttons leave usable, as the window shows
  // them: the key and whether it is enabled.
  bool IsEnabled(std::string_view key) const;
};

// The characters of a class of cmbRemove (1 letters, 2 digits, 3 the
// special characters), as UTF-8; "" for any other number.
std::string CharacterClass(int item);

}  // namespace nomra::actions
