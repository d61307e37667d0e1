#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nomra::history {

// The protocol joins the fields of a record by double quotes, which no file
// name can hold; there is no quoting and no escaping.
inline constexpr char kFieldSeparator = '"';
// Date, folder, old name, new name.
inline constexpr int kHistoryColumnCount = 4;

// One record of the rename protocol as the history window holds it.
struct HistoryRow {
  std::string time;     // field 0 as stored: "yyyymmddhhnnss" in a sound line
  std::string folder;   // field 1, ending with the separator
  std::string oldName;  // field 2
  std::string newName;  // field 3: the final name of the rename
  bool selected = false;
  // Black: the new name exists as a file, so an undo can be tried.
  // Red: it doesn't, and the undo passes the row over.
  bool present = false;

  // A column as the window shows it: 0 the date in display form, 1 to 3 the
  // fields; "" for any other column.
  std::string ColumnText(int column) const;
};

// "yyyymmddhhnnss" as "yyyy-mm-dd, hh:nn:ss". Characters are taken by
// position, so a shorter or odd text gives its pieces where they stand and
// empty ones beyond its end.
std::string FormatHistoryDate(std::string_view stored);

// Splits one line of the protocol, already decoded, at the double quotes:
// fields beyond the fourth are dropped, missing ones stay empty. An empty
// line holds no record.
std::optional<HistoryRow> ParseHistoryRecord(std::string_view line);

// The line of a row, without its end: the stored time, folder, old and new
// name joined by double quotes.
std::string HistoryRecordLine(const HistoryRow& row);

}  // namespace nomra::history
