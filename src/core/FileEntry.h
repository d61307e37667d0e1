#pragma once
#include <array>
#include <string>

namespace nomra {

// Column numbers of a row. Every value of a row is text.
enum Column : int {
  kColDisplay = 0,      // "" in the details views, a copy of the new name in the icon view
  kColPath = 1,         // folder, ending with the separator
  kColOldName = 2,      // name on disk
  kColNewName = 3,      // pending name
  kColCreated = 4,      // "yyyy-mm-dd hh:nn:ss"
  kColModified = 5,
  kColExifDate = 6,
  kColSize = 7,         // "#,##0"; its tag holds 12 zero-padded digits
  kColSortKey = 8,      // scratch text of the sort
  kColHistory0 = 9,     // latest state seen by the refresh
  kColHistoryFirst = 10,
  kColHistoryLast = 19,  // 10 is the most recent older state
  kColListPosition = 20,  // position at the last refresh, 12 digits
};

inline constexpr int kColumnCount = 21;
inline constexpr int kHistoryLevels = kColHistoryLast - kColHistoryFirst + 1;

enum class RowColour { Black, DarkRed };

struct FileEntry {
  std::string key;  // absolute path at the moment
  int position = 0;  // 1-based, kept up to date by the list
  bool selected = false;
  RowColour colour = RowColour::Black;
  std::array<std::string, kColumnCount> columns;
  std::string sizeTag;  // hidden text of column 7

  std::string& operator[](int column) { return columns.at(static_cast<std::size_t>(column)); }
  const std::string& operator[](int column) const { return columns.at(static_cast<std::size_t>(column)); }

  bool HasPendingChange() const { return columns[kColOldName] != columns[kColNewName]; }

 private:
  friend class FileList;
  std::string foldedKey_;  // lower-cased key, only where the volume ignores case
};

}  // namespace nomra
