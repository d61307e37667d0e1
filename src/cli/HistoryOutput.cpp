#include "cli/HistoryOutput.h"

#include <string>

#include "base/NumberText.h"
#include "cli/JsonOutput.h"
#include "cli/JsonText.h"

namespace nomra::cli {

namespace {

int BlackCount(const history::HistoryList& list) {
  int black = 0;
  for (const auto& row : list.rows) black += row.present ? 1 : 0;
  return black;
}

std::string Grouped(std::size_t count) { return base::FormatGrouped(static_cast<std::uint64_t>(count)); }

void WriteRecord(std::ostream& out, std::size_t number, const history::HistoryRow& row) {
  out << "{\"number\":" << number << ",\"time\":" << JsonString(row.time)
      << ",\"date\":" << JsonString(row.ColumnText(0)) << ",\"folder\":" << JsonString(row.folder)
      << ",\"oldName\":" << JsonString(row.oldName) << ",\"newName\":" << JsonString(row.newName) << ",\"state\":\""
      << HistoryState(row) << "\"}";
}

}  // namespace

const char* HistoryState(const history::HistoryRow& row) { return row.present ? "black" : "red"; }

void WriteHistoryTable(std::ostream& out, const history::HistoryList& list) {
  const std::size_t width = std::to_string(list.rows.size()).size();
  for (std::size_t i = 0; i < list.rows.size(); ++i) {
    const history::HistoryRow& row = list.rows[i];
    const std::string number = std::to_string(i + 1);
    out << std::string(width - number.size(), ' ') << number << "  " << HistoryState(row)
        << (row.present ? "  " : "    ") << row.ColumnText(0) << "  " << row.folder << "  " << row.oldName << " -> "
        << row.newName << '\n';
  }
  const std::size_t black = static_cast<std::size_t>(BlackCount(list));
  out << Grouped(list.rows.size()) << (list.rows.size() == 1 ? " record, " : " records, ") << Grouped(black)
      << " black, " << Grouped(list.rows.size() - black) << " red\n";
}

void WriteHistoryJson(std::ostream& out, const history::HistoryList& list,
                      const std::vector<commit::ReportRow>& failures) {
  out << "{\"records\":[";
  for (std::size_t i = 0; i < list.rows.size(); ++i) {
    if (i > 0) out << ",\n";
    WriteRecord(out, i + 1, list.rows[i]);
  }
  const int black = BlackCount(list);
  out << "],\n\"black\":" << black << ",\"red\":" << static_cast<int>(list.rows.size()) - black << ",\"failures\":[";
  for (std::size_t i = 0; i < failures.size(); ++i) {
    if (i > 0) out << ",\n";
    WriteReportRow(out, failures[i]);
  }
  out << "]}\n";
}

}  // namespace nomra::cli
