#include "commit/DiskCommitter.h"

#include "commit/NotRenamedReport.h"
#include "commit/RenameFiles.h"

namespace nomra::commit {

void DiskCommitter::CommitAll() {
  lastResult_ = mdlRenameFiles(context_, kWholeList, services_.clock);
  ShowNotRenamed(context_, lastResult_, services_);
}

void DiskCommitter::CommitRow(int position) {
  lastResult_ = mdlRenameFiles(context_, position, services_.clock);
  ShowNotRenamed(context_, lastResult_, services_);
}

}  // namespace nomra::commit
