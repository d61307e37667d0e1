#pragma once
#include "core/StatusTexts.h"
#include "lang/MessageCatalog.h"

namespace nomra {

// The status texts of the language in force.
StatusTexts StatusTextsOf(const lang::MessageCatalog& catalog);

}  // namespace nomra
