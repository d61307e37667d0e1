#include "history/UndoRenamings.h"

#include <optional>

#include "base/Paths.h"
#include "commit/DiskRename.h"
#include "commit/RenameFailure.h"
#include "history/WriteHistory.h"
#include "lang/MessageKeys.h"

namespace nomra::history {

namespace {

bool Confirmed(core::FrontEnd& frontEnd, const char* question) {
  const core::Message message{
      question, lang::kAttentionCaption, core::MessageStyle::YesNoWarningDefaultNo, {kParagraphBreak}};
  return frontEnd.Ask(message) == core::Answer::Yes;
}

// Renames the file back; nothing when that worked. An old name that no file
// may have is refused before the disk is touched, so a damaged record can't
// move a file into another folder.
std::optional<base::Failure> RenameBack(platform::FileSystem& fileSystem, const HistoryRow& row,
                                        const std::string& from, const std::string& to) {
  if (std::optional<base::Failure> refused = commit::RefuseName(row.oldName)) return refused;
  const platform::RenameResult renamed = fileSystem.RenameNoReplace(from, to);
  if (!renamed.ok) return commit::FailureOfError(renamed.error);
  if (!fileSystem.ConfirmRenamed(from, to)) return commit::OtherFailure(commit::kRenameDidNothingText);
  return std::nullopt;
}

// One row's rename back; a failure is shown at once. Answers whether it worked.
bool UndoRow(const HistoryRow& row, const HistoryServices& services, UndoOutcome& outcome) {
  const std::string folder = base::AddBackslash(row.folder);
  const std::string from = folder + row.newName;
  const std::string to = folder + row.oldName;
  const std::optional<base::Failure> failure = RenameBack(services.fileSystem, row, from, to);
  if (!failure) {
    ++outcome.undone;
    return true;
  }
  outcome.failures.push_back(
      commit::FailedRenameRow(*failure, static_cast<int>(outcome.failures.size()) + 1, from, from, to));
  if (services.showFailure) {
    services.showFailure(outcome.failures.back());
  } else {
    services.frontEnd.Ask(FailureMessage(outcome.failures.back()));
  }
  return false;
}

}  // namespace

core::Message FailureMessage(const commit::ReportRow& failure) {
  return core::Message{failure.textKey, "", core::MessageStyle::OkWarning, failure.arguments};
}

UndoOutcome UndoRenamings(HistoryList& list, const HistoryServices& services) {
  UndoOutcome outcome;
  if (!Confirmed(services.frontEnd, lang::kHistoryUndoQuestion)) return outcome;
  outcome.confirmed = true;

  // Rows that stay are gathered in order, so a long history costs one pass.
  std::vector<HistoryRow> kept;
  kept.reserve(list.rows.size());
  for (HistoryRow& row : list.rows) {
    if (row.selected && row.present && UndoRow(row, services, outcome)) continue;
    kept.push_back(std::move(row));
  }
  list.rows = std::move(kept);
  writeHistoryData(list, services.dataFolder, services.fileSystem);
  return outcome;
}

bool cmdDeleteHistory(HistoryList& list, const HistoryServices& services) {
  if (!Confirmed(services.frontEnd, lang::kHistoryDeleteQuestion)) return false;
  list.rows.clear();
  writeHistoryData(list, services.dataFolder, services.fileSystem);
  return true;
}

}  // namespace nomra::history
