#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "core/MainModel.h"

namespace nomra::cli {

// The whole list as one JSON document, rows in list order:
// {"rows":[{"key":…,"selected":…,"columns":[21 texts]},…],
//  "files":N,"folders":F,"changed":C,"report":[…]}
// `report` holds what the run has to tell beyond the list, one text each.
void WriteJson(std::ostream& out, const MainModel& model, const std::vector<std::string>& report);

}  // namespace nomra::cli
