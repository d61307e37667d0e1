#include "commit/DiskCommitter.h"

#include "commit/NotRenamedReport.h"
#include "commit/RenameFiles.h"

namespace nomra {

void DiskCommitter::CommitAll() {
  lastResult_ = mdlRenameFiles(model_, kWholeList, services_.clock);
  ShowNotRenamed(model_, lastResult_, services_);
}

void DiskCommitter::CommitRow(int position) {
  lastResult_ = mdlRenameFiles(model_, position, services_.clock);
  ShowNotRenamed(model_, lastResult_, services_);
}

}  // namespace nomra
