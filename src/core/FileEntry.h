#pragma once
#include <array>
#include <string>

namespace nomra::core {

// Column numbers of a row. Every value of a row is text.
enum Column : int {
  kColDisplay = 0,  // "" in the details views, a copy of the new name in the icon view
  kColPath = 1,     // folder, ending with the separator
  kColOldName = 2,  // name on disk
  kColNewName = 3,  // pending name
  kColCreated = 4,  // "yyyy-mm-dd hh:nn:ss"
  kColModified = 5,
  kColExifDate = 6,
  kColSize = 7,      // "#,##0"; its tag holds 12 zero-padded digits
  kColSortKey = 8,   // scratch text of the sort
  kColHistory0 = 9,  // latest state seen by the refresh
  kColHistoryFirst = 10,
  kColHistoryLast = 19,   // 10 is the most recent older state
  kColListPosition = 20,  // position at the last refresh, 12 digits
};

inline constexpr int kColumnCount = 21;
inline constexpr int kHistoryLevels = kColHistoryLast - kColHistoryFirst + 1;

enum class RowColour { Black, DarkRed };

struct FileEntry {
  std::string key;   // absolute path at the moment
  int position = 0;  // 1-based, kept up to date by the list
  bool selected = false;
  RowColour colour = RowColour::Black;
  std::string sizeTag;  // hidden text of column 7

  // Columns 0 to 20; anything else throws std::out_of_range.
  std::string& operator[](int column) { return columns_.at(Slot(column)); }
  const std::string& operator[](int column) const { return columns_.at(Slot(column)); }

  bool HasPendingChange() const { return columns_[kColOldName] != columns_[kColNewName]; }

  // Each history level takes the one before it, the oldest is dropped, and
  // column 9 takes `newest`.
  void PushHistory(const std::string& newest) {
    historyStart_ = static_cast<unsigned char>((historyStart_ + kHistoryColumns - 1) % kHistoryColumns);
    (*this)[kColHistory0] = newest;
  }
  // Each history level takes the one after it; column 19 is emptied.
  void PopHistory() {
    historyStart_ = static_cast<unsigned char>((historyStart_ + 1) % kHistoryColumns);
    (*this)[kColHistoryLast].clear();
  }

 private:
  friend class FileList;
  static constexpr int kHistoryColumns = kColHistoryLast - kColHistory0 + 1;

  // Columns 9 to 19 lie in a ring, so that a new history level costs one
  // text per row instead of eleven, whatever the number of rows.
  std::size_t Slot(int column) const {
    if (column < kColHistory0 || column > kColHistoryLast) return static_cast<std::size_t>(column);
    return static_cast<std::size_t>(kColHistory0 + (column - kColHistory0 + historyStart_) % kHistoryColumns);
  }

  std::array<std::string, kColumnCount> columns_;
  unsigned char historyStart_ = 0;
  std::string foldedKey_;  // lower-cased key, only where the volume ignores case
};

}  // namespace nomra::core
