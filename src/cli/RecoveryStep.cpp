#include "cli/RecoveryStep.h"

#include "commit/CommitRecovery.h"

namespace nomra::cli {

void RecoverAtStart(MainModel& model, std::ostream& messages) {
  const InterruptedCommit commit = RecoverInterruptedCommit(model.fileSystem, model.dataFolder);
  for (const std::string& names : commit.finished) {
    messages << "nomra-cli: interrupted commit: finished " << names << '\n';
  }
  ShowUnresolved(model.frontEnd, commit);
}

}  // namespace nomra::cli
