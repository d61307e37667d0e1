#pragma once
#include <string>
#include <string_view>

#include "lang/LocaliseForm.h"

namespace nomra::lang {

// Where a text stands in the language file.
struct TextKey {
  std::string key;
  std::string section;
};

// The key and section of a control, from its tag: an empty tag gives the
// control's own name (in "Buttons" for command buttons), "key|section" names
// both, a tag starting with "frm" names the section, any other tag the key.
TextKey KeyOfControl(ControlKind kind, std::string_view name, std::string_view tag, std::string_view dialogSection);

// The key and section of a list view's column head: "key|section", or the
// key alone in the dialog's section.
TextKey KeyOfColumnHead(std::string_view tag, std::string_view dialogSection);

}  // namespace nomra::lang
