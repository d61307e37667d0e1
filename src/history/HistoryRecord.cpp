#include "history/HistoryRecord.h"

#include "base/Utf8.h"

namespace nomra::history {

namespace {

constexpr std::size_t kStoredTimeLength = 14;

enum Column { kDate = 0, kFolder = 1, kOldName = 2, kNewName = 3 };

}  // namespace

std::string HistoryRow::ColumnText(int column) const {
  switch (column) {
    case kDate: return FormatHistoryDate(time);
    case kFolder: return folder;
    case kOldName: return oldName;
    case kNewName: return newName;
    default: return {};
  }
}

std::string FormatHistoryDate(std::string_view stored) {
  // Only the first fourteen characters are shown; a garbage line of any
  // length is not decoded beyond them.
  std::u32string chars;
  for (std::size_t pos = 0; pos < stored.size() && chars.size() < kStoredTimeLength;) {
    char32_t c;
    pos += base::DecodeAt(stored, pos, c);
    chars.push_back(c);
  }
  const auto piece = [&chars](std::size_t first, std::size_t length) {
    if (first > chars.size()) return std::string();
    return base::FromChars(std::u32string_view(chars).substr(first - 1, length));
  };
  return piece(1, 4) + "-" + piece(5, 2) + "-" + piece(7, 2) + ", " + piece(9, 2) + ":" + piece(11, 2) + ":" +
         piece(13, 2);
}

std::optional<HistoryRow> ParseHistoryRecord(std::string_view line) {
  if (line.empty()) return std::nullopt;
  HistoryRow row;
  std::string* fields[kHistoryColumnCount] = {&row.time, &row.folder, &row.oldName, &row.newName};
  for (int field = 0; field < kHistoryColumnCount; ++field) {
    const std::size_t end = line.find(kFieldSeparator);
    *fields[field] = std::string(line.substr(0, end));
    if (end == std::string_view::npos) break;
    line.remove_prefix(end + 1);
  }
  return row;
}

std::string HistoryRecordLine(const HistoryRow& row) {
  std::string line = row.time;
  line.append(1, kFieldSeparator).append(row.folder);
  line.append(1, kFieldSeparator).append(row.oldName);
  line.append(1, kFieldSeparator).append(row.newName);
  return line;
}

}  // namespace nomra::history
