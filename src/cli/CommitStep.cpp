#include "cli/CommitStep.h"

#include "commit/RenameFiles.h"

namespace nomra::cli {

std::vector<ReportRow> CommitPendingChanges(CliSession& session, std::ostream& messages) {
  CommitResult result = mdlRenameFiles(session.Commit(), kWholeList);
  session.preview.Refresh();
  for (const ReportRow& row : result.notRenamed) messages << "nomra-cli: not renamed: " << row.Describe() << '\n';
  return std::move(result.notRenamed);
}

}  // namespace nomra::cli
