#include "cli/CommitStep.h"

#include "commit/RenameFiles.h"
#include "core/RefreshPreview.h"

namespace nomra::cli {

std::vector<ReportRow> CommitPendingChanges(MainModel& model, std::ostream& messages) {
  CommitResult result = mdlRenameFiles(model, kWholeList);
  refreshPreview(model);
  for (const ReportRow& row : result.notRenamed) messages << "nomra-cli: not renamed: " << row.Describe() << '\n';
  return std::move(result.notRenamed);
}

}  // namespace nomra::cli
