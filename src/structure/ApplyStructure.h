#pragma once
#include <string_view>

#include "rename/ActionContext.h"

namespace nomra::structure {

// Sets the pending name of every row in scope to what the name structure
// gives for that row.
void ApplyStructure(const rename::ActionContext& context, std::string_view structure);

}  // namespace nomra::structure
