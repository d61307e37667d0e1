#pragma once
#include <ostream>
#include <vector>

#include "cli/CliSession.h"
#include "commit/ReportRow.h"

namespace nomra::cli {

// --commit: every pending change of the list goes to disk in one batch, the
// list is refreshed, and each rename that didn't happen is printed to
// `messages`. Returns those, for the JSON report and the exit status.
std::vector<commit::ReportRow> CommitPendingChanges(CliSession& session, std::ostream& messages);

}  // namespace nomra::cli
