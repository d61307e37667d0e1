#include "cli/TableOutput.h"

#include <map>
#include <vector>

#include "base/NumberText.h"

namespace nomra::cli {

namespace {

std::string Counted(int count, const char* one, const char* many) {
  return base::FormatGrouped(static_cast<std::uint64_t>(count)) + ' ' + (count == 1 ? one : many);
}

}  // namespace

std::string SummaryLine(int files, int folders, int changed) {
  return Counted(files, "file", "files") + ", " + Counted(folders, "folder", "folders") + ", " +
         base::FormatGrouped(static_cast<std::uint64_t>(changed)) + " changed";
}

void WriteTable(std::ostream& out, const CliSession& session) {
  // A sort by anything but the folder can mix folders; each still gets one heading.
  std::vector<std::string> folders;
  std::map<std::string, std::vector<const core::FileEntry*>> changedRows;
  session.state.list.ForEach([&](const core::FileEntry& row) {
    if (!row.HasPendingChange()) return;
    auto [place, added] = changedRows.try_emplace(row[core::kColPath]);
    if (added) folders.push_back(row[core::kColPath]);
    place->second.push_back(&row);
  });
  for (const std::string& folder : folders) {
    out << folder << '\n';
    for (const core::FileEntry* row : changedRows[folder]) {
      out << "  " << (*row)[core::kColOldName] << " -> " << (*row)[core::kColNewName] << '\n';
    }
  }
  out << SummaryLine(session.state.list.Count(), session.state.folderCount, session.state.changedCount) << '\n';
}

}  // namespace nomra::cli
