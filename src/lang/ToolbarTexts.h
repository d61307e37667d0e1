#pragma once
#include <string_view>

#include "lang/LocaliseForm.h"
#include "lang/MessageCatalog.h"

namespace nomra::lang {

// The tool tips of a toolbar's buttons and the texts of their drop-down
// entries. Separators and placeholders carry no tool tip.
void LocaliseToolbar(LocalisableControl& toolbar, std::string_view dialogSection, const MessageCatalog& catalog);

}  // namespace nomra::lang
