#pragma once
#include <ostream>
#include <string>

#include "cli/CliSession.h"

namespace nomra::cli {

// The rows with a pending change, for a person to read: each folder once as
// a heading (folders in the order they first appear), its rows under it in
// list order as "old name -> new name", then the summary line.
void WriteTable(std::ostream& out, const CliSession& session);

// "N files, F folders, C changed", with "1 file" and "1 folder" for one.
std::string SummaryLine(int files, int folders, int changed);

}  // namespace nomra::cli
