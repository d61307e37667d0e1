#pragma once
#include <string>
#include <vector>

#include "commit/ReportRow.h"

namespace nomra::commit {

// What one commit leaves for the not-renamed report.
struct CommitResult {
  std::vector<ReportRow> notRenamed;
  // Keys of the rows renamed by the whole-list commit, as they were right
  // after their rename: a row that went through a temporary name is listed
  // under it.
  std::vector<std::string> renamed;
};

}  // namespace nomra::commit
