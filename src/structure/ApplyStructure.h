#pragma once
#include <string_view>

#include "core/MainModel.h"

namespace nomra {

// Sets the pending name of every row in scope to what the name structure
// gives for that row.
void ApplyStructure(MainModel& model, std::string_view structure);

}  // namespace nomra
