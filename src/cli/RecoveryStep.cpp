#include "cli/RecoveryStep.h"

#include "commit/CommitRecovery.h"

namespace nomra::cli {

void RecoverAtStart(CliSession& session, std::ostream& messages) {
  const InterruptedCommit commit = RecoverInterruptedCommit(session.fileSystem, session.options.dataFolder);
  for (const std::string& names : commit.finished) {
    messages << "nomra-cli: interrupted commit: finished " << names << '\n';
  }
  ShowUnresolved(session.frontEnd, commit);
}

}  // namespace nomra::cli
