#include "commit/ReportRow.h"

#include <utility>

#include "base/Quoting.h"
#include "lang/MessageKeys.h"

namespace nomra::commit {

namespace {

constexpr char kNoName[] = "\"\"";

std::string Reason(const ReportRow& row) {
  if (row.textKey == lang::kTargetExistsText) return "the target exists";
  if (row.textKey == lang::kPathNotUsableText) return "access denied or path not found";
  return row.systemText;
}

// Rows without names come from before any name was known: a row whose file
// is gone (it has its key) or the protocol that couldn't be opened (no row).
std::string Names(const ReportRow& row) {
  if (!row.about.empty()) return row.about;
  const bool named = row.arguments.size() == 2 && (row.arguments[0] != kNoName || row.arguments[1] != kNoName);
  if (named) return row.arguments[0] + " -> " + row.arguments[1];
  if (!row.rowKey.empty()) return "\"" + row.rowKey + "\"";
  return "the rename protocol";
}

const char* TextKeyOf(base::FailureKind kind) {
  switch (kind) {
    case base::FailureKind::TargetExists: return lang::kTargetExistsText;
    case base::FailureKind::PathNotUsable: return lang::kPathNotUsableText;
    default: break;
  }
  return lang::kOtherFailureText;
}

}  // namespace

ReportRow FailedRenameRow(const base::Failure& failure, int number, std::string rowKey, const std::string& from,
                          const std::string& to) {
  ReportRow row;
  row.number = number;
  row.rowKey = std::move(rowKey);
  row.textKey = TextKeyOf(failure.kind);
  row.arguments = {base::Quoted(from), base::Quoted(to)};
  if (failure.kind == base::FailureKind::Other) row.systemText = failure.systemText;
  return row;
}

std::string ReportRow::Describe() const { return Names(*this) + ": " + Reason(*this); }

}  // namespace nomra::commit
