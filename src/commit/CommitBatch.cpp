#include "commit/CommitBatch.h"

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

void CommitBatch::RecordRename(const FileEntry& row) {
  if (!model.protocolRenames) return;
  protocol_.Write(clock_(), row[kColPath], row[kColOldName], row[kColNewName]);
}

}  // namespace nomra
