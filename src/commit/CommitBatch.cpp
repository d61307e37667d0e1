#include "commit/CommitBatch.h"

#include <cerrno>

#include "base/Quoting.h"
#include "lang/MessageKeys.h"

namespace nomra::commit {

namespace {}  // namespace

void CommitBatch::Fail(const std::string& rowKey, const base::Failure& failure, const std::string& src,
                       const std::string& dst) {
  const int number = static_cast<int>(result.notRenamed.size()) + 1;
  result.notRenamed.push_back(FailedRenameRow(failure, number, rowKey, src, dst));
}

void CommitBatch::BeginJournal(const std::vector<JournalPlanEntry>& plan,
                               const std::vector<JournalTemporaryEntry>& temporaries) {
  if (plan.empty()) return;
  if (const int error = journal_.Begin(context.options.dataFolder, plan, temporaries); error != 0) FailJournal(error);
}

void CommitBatch::JournalTemporary(const std::string& source, const std::string& temporary, const std::string& final) {
  if (!journal_.IsOpen()) return;
  if (const int error = journal_.RecordTemporary(source, temporary, final); error != 0) FailJournal(error);
}

void CommitBatch::FailJournal(int error) {
  ReportRow row;
  row.number = static_cast<int>(result.notRenamed.size()) + 1;
  row.textKey = lang::kOtherFailureText;
  row.arguments = {base::Quoted(""), base::Quoted("")};
  row.about = "the commit journal";
  const std::string why = error == EEXIST ? "one is there already, left by an interrupted commit or held by a "
                                            "commit in another Nomra"
                                          : base::SystemErrorText(error);
  row.systemText = "not written (" + why +
                   "); the renames went on, but one cut short by a crash could not be "
                   "repaired at the next start";
  result.notRenamed.push_back(std::move(row));
}

void CommitBatch::RecordRename(const core::FileEntry& row) {
  if (!context.options.protocolRenames) return;
  protocol_.Write(clock_(), row[core::kColPath], row[core::kColOldName], row[core::kColNewName]);
}

}  // namespace nomra::commit
