#pragma once
#include <string_view>

#include "rename/ActionContext.h"

namespace nomra {

// Sets the pending name of every row in scope to what the name structure
// gives for that row.
void ApplyStructure(const ActionContext& context, std::string_view structure);

}  // namespace nomra
