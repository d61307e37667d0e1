#include "commit/RenameFiles.h"

#include "base/Paths.h"
#include "commit/CommitBatch.h"
#include "commit/CommitExecution.h"
#include "commit/CommitPlan.h"
#include "commit/SingleRowCommit.h"
#include "settings/SettingsKeys.h"

namespace nomra {

namespace {

// The end steps run however the commit ends: the protocol is closed, the
// status counter starts again and the busy pointer goes.
class CommitScope {
 public:
  CommitScope(MainModel& model, ProtocolWriter& protocol) : model_(model), protocol_(protocol) {
    model_.frontEnd.SetBusy(true);
  }
  ~CommitScope() {
    protocol_.Close();
    model_.statusCounter = 0;
    model_.frontEnd.SetBusy(false);
  }
  CommitScope(const CommitScope&) = delete;
  CommitScope& operator=(const CommitScope&) = delete;

 private:
  MainModel& model_;
  ProtocolWriter& protocol_;
};

// Without a data folder there is no protocol to open.
std::string ProtocolPath(const MainModel& model) {
  return model.dataFolder.empty() ? std::string() : AddBackslash(model.dataFolder) + settings::kProtocolFileName;
}

}  // namespace

CommitResult mdlRenameFiles(MainModel& model, int position, const LocalClock& clock) {
  CommitResult result;
  ProtocolWriter protocol(model.fileSystem);
  CommitJournal journal(model.fileSystem);
  const CommitScope scope(model, protocol);
  CommitBatch batch(model, result, protocol, journal, clock);

  // Opened whether renames are logged or not; a failure costs the records only.
  if (const int error = protocol.Open(ProtocolPath(model)); error != 0) {
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

}  // namespace nomra
