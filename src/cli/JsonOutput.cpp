#include "cli/JsonOutput.h"

#include "cli/JsonText.h"

namespace nomra::cli {

namespace {

void WriteRow(std::ostream& out, const core::FileEntry& row) {
  out << "{\"key\":" << JsonString(row.key) << ",\"selected\":" << (row.selected ? "true" : "false")
      << ",\"columns\":[";
  for (int column = 0; column < core::kColumnCount; ++column) {
    if (column > 0) out << ',';
    out << JsonString(row[column]);
  }
  out << "]}";
}

}  // namespace

void WriteReportRow(std::ostream& out, const commit::ReportRow& row) {
  out << "{\"number\":" << row.number << ",\"key\":" << JsonString(row.rowKey)
      << ",\"message\":" << JsonString(row.Describe()) << ",\"textKey\":" << JsonString(row.textKey) << '}';
}

void WriteJson(std::ostream& out, const CliSession& session, const std::vector<commit::ReportRow>& report) {
  out << "{\"rows\":[";
  bool first = true;
  session.state.list.ForEach([&](const core::FileEntry& row) {
    if (!first) out << ",\n";
    first = false;
    WriteRow(out, row);
  });
  out << "],\n\"files\":" << session.state.list.Count() << ",\"folders\":" << session.state.folderCount
      << ",\"changed\":" << session.state.changedCount << ",\"report\":[";
  for (std::size_t i = 0; i < report.size(); ++i) {
    if (i > 0) out << ",\n";
    WriteReportRow(out, report[i]);
  }
  out << "]}\n";
}

}  // namespace nomra::cli
