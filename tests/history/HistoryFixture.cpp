#include "history/HistoryFixture.h"

#include "history/LoadHistory.h"

namespace nomra::testing {

platform::RenameResult BendableFileSystem::RenameNoReplace(const std::string& from, const std::string& to) {
  renamedFrom.push_back(from);
  if (refuseWith != 0) return {false, refuseWith};
  if (pretendOnly) return {true, 0};
  return ForwardingFileSystem::RenameNoReplace(from, to);
}

std::string HistoryTest::Record(const std::string& oldName, const std::string& newName, const std::string& time) const {
  return ProtocolLine(files.Path(), oldName, newName, time);
}

void HistoryTest::Load() { history::LoadHistory(list, data.Path(), fileSystem); }

void HistoryTest::Select(const std::vector<int>& positions) {
  for (int position : positions) list.rows.at(static_cast<std::size_t>(position - 1)).selected = true;
}

void HistoryTest::SelectAll() {
  for (auto& row : list.rows) row.selected = true;
}

std::vector<std::string> HistoryTest::Column(int column) const {
  std::vector<std::string> texts;
  for (const auto& row : list.rows) texts.push_back(row.ColumnText(column));
  return texts;
}

std::vector<bool> HistoryTest::Black() const {
  std::vector<bool> black;
  for (const auto& row : list.rows) black.push_back(row.present);
  return black;
}

history::UndoOutcome HistoryTest::UndoWithYes() {
  frontEnd.answers.push_back(core::Answer::Yes);
  return history::UndoRenamings(list, services);
}

}  // namespace nomra::testing
