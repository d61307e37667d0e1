#pragma once
#include <string>
#include <string_view>

#include "core/MainModel.h"

namespace nomra {

// The new name that a name structure gives for row `row` (1-based).
std::string EvaluateStructure(MainModel& model, int row, std::string_view structure);

// Sets the pending name of every row in scope to what the structure gives.
void ApplyStructure(MainModel& model, std::string_view structure);

}  // namespace nomra
