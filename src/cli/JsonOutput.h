#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "cli/CliSession.h"
#include "commit/ReportRow.h"

namespace nomra::cli {

// The whole list as one JSON document, rows in list order:
// {"rows":[{"key":…,"selected":…,"columns":[21 texts]},…],
//  "files":N,"folders":F,"changed":C,"report":[…]}
// `report` holds the renames --commit couldn't make, each as
// {"number":N,"key":…,"message":…,"textKey":…}.
void WriteJson(std::ostream& out, const CliSession& session, const std::vector<commit::ReportRow>& report);

// One rename that didn't happen: {"number":N,"key":…,"message":…,"textKey":…}.
void WriteReportRow(std::ostream& out, const commit::ReportRow& row);

}  // namespace nomra::cli
