// The order of the history window's rows and the state of its buttons.
#include <gtest/gtest.h>

#include "history/HistoryList.h"

namespace nomra::history {
namespace {

HistoryRow Row(const std::string& time, const std::string& oldName, const std::string& newName) {
  HistoryRow row;
  row.time = time;
  row.folder = "/d/";
  row.oldName = oldName;
  row.newName = newName;
  return row;
}

std::vector<std::string> OldNames(const HistoryList& list) {
  std::vector<std::string> names;
  for (const auto& row : list.rows) names.push_back(row.oldName);
  return names;
}

class HistoryOrder : public ::testing::Test {
 protected:
  HistoryOrder() {
    list.rows = {Row("20040102000000", "b", "Zulu"), Row("20040101000000", "c", "alpha"),
                 Row("20040103000000", "a", "Mike")};
  }
  HistoryList list;
};

TEST_F(HistoryOrder, DateHeadCarriesTheAscendingArrowFromTheStartWithRowsInFileOrder) {
  EXPECT_EQ(list.sortColumn, 0);
  EXPECT_FALSE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"b", "c", "a"}));
}

TEST_F(HistoryOrder, ClickOnAnotherHeadSortsByItAscending) {
  ClickHistoryHead(list, 2);
  EXPECT_EQ(list.sortColumn, 2);
  EXPECT_FALSE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"a", "b", "c"}));
}

TEST_F(HistoryOrder, SecondClickOnTheSameHeadTurnsTheDirectionOver) {
  ClickHistoryHead(list, 2);
  ClickHistoryHead(list, 2);
  EXPECT_TRUE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"c", "b", "a"}));
}

TEST_F(HistoryOrder, FirstClickOnTheDateHeadTurnsItsArrowToDescending) {
  ClickHistoryHead(list, 0);
  EXPECT_TRUE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"a", "b", "c"}));
}

TEST_F(HistoryOrder, ChangingTheHeadStartsAscendingAgain) {
  ClickHistoryHead(list, 2);
  ClickHistoryHead(list, 2);
  ClickHistoryHead(list, 3);
  EXPECT_EQ(list.sortColumn, 3);
  EXPECT_FALSE(list.descending);
}

TEST_F(HistoryOrder, TextIsComparedWithoutRegardToCase) {
  ClickHistoryHead(list, 3);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"c", "a", "b"}));  // alpha, Mike, Zulu
}

TEST_F(HistoryOrder, DateSortsByTheTextAsShown) {
  // Shown as "2004--, ::": a dash sorts before a digit.
  list.rows.push_back(Row("2004", "short", "x"));
  ClickHistoryHead(list, 1);
  ClickHistoryHead(list, 0);
  EXPECT_FALSE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"short", "c", "b", "a"}));
}

TEST_F(HistoryOrder, EqualTextsKeepTheirOrderInBothDirections) {
  list.rows = {Row("t", "1", "same"), Row("t", "2", "SAME"), Row("t", "3", "Same")};
  ClickHistoryHead(list, 3);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"1", "2", "3"}));
  ClickHistoryHead(list, 3);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"1", "2", "3"}));
}

TEST_F(HistoryOrder, HeadOutsideTheFourColumnsChangesNothing) {
  ClickHistoryHead(list, 4);
  ClickHistoryHead(list, -1);
  EXPECT_EQ(list.sortColumn, 0);
  EXPECT_FALSE(list.descending);
  EXPECT_EQ(OldNames(list), (std::vector<std::string>{"b", "c", "a"}));
}

TEST_F(HistoryOrder, SortingKeepsEachRowsSelectionAndColour) {
  list.rows[2].selected = true;
  list.rows[2].present = true;
  ClickHistoryHead(list, 2);
  EXPECT_TRUE(list.rows[0].selected);
  EXPECT_TRUE(list.rows[0].present);
  EXPECT_FALSE(list.rows[1].selected || list.rows[2].selected);
}

TEST(HistoryButtons, UndoNeedsASelectedRowRedOrBlack) {
  HistoryList list;
  list.rows = {Row("t", "a", "b"), Row("t", "c", "d")};
  EXPECT_FALSE(CanUndo(list));
  list.rows[1].selected = true;  // a red row
  EXPECT_TRUE(CanUndo(list));
}

TEST(HistoryButtons, DeleteNeedsRows) {
  HistoryList list;
  EXPECT_FALSE(CanDelete(list));
  list.rows.push_back(Row("t", "a", "b"));
  EXPECT_TRUE(CanDelete(list));
}

}  // namespace
}  // namespace nomra::history
