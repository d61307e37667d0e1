#include <gtest/gtest.h>

#include <stdexcept>

#include "core/FileEntry.h"

namespace nomra::core {
namespace {

TEST(FileEntry, PushMovesEveryLevelOnAndDropsTheOldest) {
  FileEntry row;
  for (int column = kColHistory0; column <= kColHistoryLast; ++column) row[column] = "h" + std::to_string(column);
  row.PushHistory("newest");
  EXPECT_EQ(row[kColHistory0], "newest");
  for (int column = kColHistoryFirst; column <= kColHistoryLast; ++column) {
    EXPECT_EQ(row[column], "h" + std::to_string(column - 1)) << column;
  }
}

TEST(FileEntry, PopMovesEveryLevelBackAndEmptiesTheLast) {
  FileEntry row;
  for (int column = kColHistory0; column <= kColHistoryLast; ++column) row[column] = "h" + std::to_string(column);
  row.PopHistory();
  for (int column = kColHistory0; column < kColHistoryLast; ++column) {
    EXPECT_EQ(row[column], "h" + std::to_string(column + 1)) << column;
  }
  EXPECT_EQ(row[kColHistoryLast], "");
}

TEST(FileEntry, ManyPushesAndPopsLeaveTheOtherColumnsAlone) {
  FileEntry row;
  for (int column = 0; column < kColumnCount; ++column) row[column] = "c" + std::to_string(column);
  for (int i = 0; i < 30; ++i) row.PushHistory("p" + std::to_string(i));
  for (int i = 0; i < 7; ++i) row.PopHistory();
  for (int column : {0, 1, 2, 3, 4, 5, 6, 7, 8, 20}) EXPECT_EQ(row[column], "c" + std::to_string(column));
  EXPECT_EQ(row[kColHistory0], "p22");
  EXPECT_EQ(row[kColHistoryFirst], "p21");
}

TEST(FileEntry, ColumnOutsideTheRowThrows) {
  FileEntry row;
  EXPECT_THROW(row[21], std::out_of_range);
  EXPECT_THROW(row[-1], std::out_of_range);
}

}  // namespace
}  // namespace nomra::core
