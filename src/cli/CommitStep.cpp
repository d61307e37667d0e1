#include "cli/CommitStep.h"

#include "commit/RenameFiles.h"

namespace nomra::cli {

std::vector<commit::ReportRow> CommitPendingChanges(CliSession& session, std::ostream& messages) {
  commit::CommitResult result = commit::mdlRenameFiles(session.Commit(), commit::kWholeList);
  session.preview.Refresh();
  for (const commit::ReportRow& row : result.notRenamed)
    messages << "nomra-cli: not renamed: " << row.Describe() << '\n';
  return std::move(result.notRenamed);
}

}  // namespace nomra::cli
