#include "cli/RecoveryStep.h"

#include "commit/CommitRecovery.h"

namespace nomra::cli {

void RecoverAtStart(CliSession& session, std::ostream& messages) {
  const commit::InterruptedCommit commit =
      commit::RecoverInterruptedCommit(session.fileSystem, session.options.dataFolder);
  for (const std::string& names : commit.finished) {
    messages << "nomra-cli: interrupted commit: finished " << names << '\n';
  }
  commit::ShowUnresolved(session.frontEnd, commit);
}

}  // namespace nomra::cli
