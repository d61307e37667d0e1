#include "commit/RenameFiles.h"

#include "base/Paths.h"
#include "commit/CommitBatch.h"
#include "commit/CommitExecution.h"
#include "commit/CommitPlan.h"
#include "commit/SingleRowCommit.h"
#include "settings/SettingsKeys.h"

namespace nomra::commit {

namespace {

// The end steps run however the commit ends: the protocol is closed, the
// status counter starts again and the busy pointer goes.
class CommitScope {
 public:
  CommitScope(const CommitContext& context, ProtocolWriter& protocol) : context_(context), protocol_(protocol) {
    context_.frontEnd.SetBusy(true);
  }
  ~CommitScope() {
    protocol_.Close();
    context_.state.statusCounter = 0;
    context_.frontEnd.SetBusy(false);
  }
  CommitScope(const CommitScope&) = delete;
  CommitScope& operator=(const CommitScope&) = delete;

 private:
  CommitContext context_;
  ProtocolWriter& protocol_;
};

// Without a data folder there is no protocol to open.
std::string ProtocolPath(const CommitContext& context) {
  return context.options.dataFolder.empty()
             ? std::string()
             : base::AddBackslash(context.options.dataFolder) + settings::kProtocolFileName;
}

}  // namespace

CommitResult mdlRenameFiles(const CommitContext& context, int position, const base::LocalClock& clock) {
  CommitResult result;
  ProtocolWriter protocol(context.fileSystem);
  CommitJournal journal(context.fileSystem);
  const CommitScope scope(context, protocol);
  CommitBatch batch(context, result, protocol, journal, clock);

  // Opened whether renames are logged or not; a failure costs the records only.
  if (const int error = protocol.Open(ProtocolPath(context)); error != 0) {
    batch.Fail("", FailureOfError(error), "", "");
  }

  if (position == kWholeList) {
    OrderedPathMap blocked(batch.keys);
    PathMap filesOnDisk(batch.keys);
    PlanCommit(batch, blocked, filesOnDisk);
    ExecuteCommit(batch, blocked, filesOnDisk);
  } else {
    CommitSingleRow(batch, position);
  }
  return result;
}

}  // namespace nomra::commit
