#pragma once
#include "core/StatusTexts.h"
#include "lang/MessageCatalog.h"

namespace nomra::shell {

// The status texts of the language in force.
core::StatusTexts StatusTextsOf(const lang::MessageCatalog& catalog);

}  // namespace nomra::shell
