#include "history/LoadHistory.h"

#include <cerrno>

#include "base/Cp1252.h"
#include "base/Failure.h"
#include "base/Fault.h"
#include "base/Paths.h"
#include "base/Utf8.h"
#include "commit/RenameFailure.h"
#include "settings/SettingsKeys.h"

namespace nomra::history {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::optional<HistoryRow> Painted(std::optional<HistoryRow> row, platform::FileSystem& fileSystem) {
  if (row) row->present = NamesExistingFile(*row, fileSystem);
  return row;
}

// Calls `line` for each line of the text; CR LF, a lone LF and a lone CR
// each end one. A last line without an end counts too.
template <typename F>
void ForEachLine(std::string_view content, F&& line) {
  while (!content.empty()) {
    const std::size_t end = content.find_first_of("\r\n");
    line(content.substr(0, end));
    if (end == std::string_view::npos) return;
    const std::size_t endLength = content.compare(end, 2, "\r\n") == 0 ? 2 : 1;
    content.remove_prefix(end + endLength);
  }
}

}  // namespace

std::string HistoryFilePath(const std::string& dataFolder) {
  return dataFolder.empty() ? std::string() : base::AddBackslash(dataFolder) + settings::kProtocolFileName;
}

bool NamesExistingFile(const HistoryRow& row, platform::FileSystem& fileSystem) {
  if (row.folder.empty() || row.folder.front() != base::kPathSeparator) return false;
  if (commit::RefuseName(row.newName)) return false;
  return fileSystem.Status(base::AddBackslash(row.folder) + row.newName).kind == platform::EntryKind::File;
}

std::optional<HistoryRow> ReadHistoryLine(std::string_view line, platform::FileSystem& fileSystem) {
  if (base::IsValidUtf8(line)) return Painted(ParseHistoryRecord(line), fileSystem);
  std::optional<HistoryRow> asBytes = Painted(ParseHistoryRecord(line), fileSystem);
  if (asBytes && asBytes->present) return asBytes;
  return Painted(ParseHistoryRecord(base::DecodeCp1252(line)), fileSystem);
}

void LoadHistory(HistoryList& list, const std::string& dataFolder, platform::FileSystem& fileSystem) {
  list.rows.clear();
  const std::string path = HistoryFilePath(dataFolder);
  if (fileSystem.Inspect(path).kind == platform::EntryKind::Missing) return;
  int error = 0;
  const std::optional<std::string> content = fileSystem.ReadFile(path, error);
  if (!content) {
    const std::string reason = error != 0 ? base::SystemErrorText(error) : "not a readable file";
    throw base::RuntimeFault("the rename history " + path + " could not be read: " + reason);
  }
  std::string_view text = *content;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  ForEachLine(text, [&](std::string_view line) {
    if (std::optional<HistoryRow> row = ReadHistoryLine(line, fileSystem)) list.rows.push_back(std::move(*row));
  });
}

}  // namespace nomra::history
