#include "commit/CommitBatch.h"

#include <cerrno>
#include <cstring>

namespace nomra {

namespace {

const char* TextKeyOf(FailureKind kind) {
  switch (kind) {
    case FailureKind::TargetExists:
      return kTargetExistsText;
    case FailureKind::PathNotUsable:
      return kPathNotUsableText;
    case FailureKind::Other:
      break;
  }
  return kOtherFailureText;
}

std::string Quoted(const std::string& path) { return "\"" + path + "\""; }

}  // namespace

void CommitBatch::Fail(const std::string& rowKey, const Failure& failure, const std::string& src,
                       const std::string& dst) {
  ReportRow row;
  row.number = static_cast<int>(result.notRenamed.size()) + 1;
  row.rowKey = rowKey;
  row.textKey = TextKeyOf(failure.kind);
  row.arguments = {Quoted(src), Quoted(dst)};
  if (failure.kind == FailureKind::Other) row.systemText = failure.systemText;
  result.notRenamed.push_back(std::move(row));
}

void CommitBatch::BeginJournal(const std::vector<JournalPlanEntry>& plan,
                               const std::vector<JournalTemporaryEntry>& temporaries) {
  if (plan.empty()) return;
  if (const int error = journal_.Begin(model.dataFolder, plan, temporaries); error != 0) FailJournal(error);
}

void CommitBatch::JournalTemporary(const std::string& source, const std::string& temporary,
                                   const std::string& final) {
  if (!journal_.IsOpen()) return;
  if (const int error = journal_.RecordTemporary(source, temporary, final); error != 0) FailJournal(error);
}

void CommitBatch::FailJournal(int error) {
  ReportRow row;
  row.number = static_cast<int>(result.notRenamed.size()) + 1;
  row.textKey = kOtherFailureText;
  row.arguments = {Quoted(""), Quoted("")};
  row.about = "the commit journal";
  const std::string why = error == EEXIST ? "one is there already, left by an interrupted commit or held by a "
                                            "commit in another Nomra"
                                          : std::strerror(error);
  row.systemText = "not written (" + why + "); the renames went on, but one cut short by a crash could not be "
                   "repaired at the next start";
  result.notRenamed.push_back(std::move(row));
}

void CommitBatch::RecordRename(const FileEntry& row) {
  if (!model.protocolRenames) return;
  protocol_.Write(clock_(), row[kColPath], row[kColOldName], row[kColNewName]);
}

}  // namespace nomra
