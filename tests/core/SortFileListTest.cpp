#include <gtest/gtest.h>

#include "core/SortFileList.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

class SortTest : public testing::ListTest {};

TEST_F(SortTest, NewNameSortPutsTwoBeforeTen) {
  AddFiles({"b.txt", "a.txt"});
  SetNewName(1, "track 10.mp3");
  SetNewName(2, "track 2.mp3");
  sortFileList(state.list, frontEnd, 4);
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"track 2.mp3", "track 10.mp3"}));
  EXPECT_EQ(state.list.sortKey, kColNewName);
}

TEST_F(SortTest, DescendingReversesTheOrder) {
  AddFiles({"f2.txt", "f10.txt", "f1.txt"});
  state.list.sortOrder = 1;
  sortFileList(state.list, frontEnd, 3);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"f10.txt", "f2.txt", "f1.txt"}));
}

TEST_F(SortTest, TextComparesWithoutCase) {
  AddFiles({"b.txt", "A.txt", "c.txt"});
  sortFileList(state.list, frontEnd, 3);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"A.txt", "b.txt", "c.txt"}));
}

TEST_F(SortTest, DateColumnSortsInDateOrder) {
  AddFiles({"x", "y", "z"});
  state.list.Item(1)[kColModified] = "2021-10-02 09:00:00";
  state.list.Item(2)[kColModified] = "2021-09-30 23:59:59";
  state.list.Item(3)[kColModified] = "2020-12-31 10:00:00";
  sortFileList(state.list, frontEnd, 6);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"z", "y", "x"}));
}

TEST_F(SortTest, SizeSortsByThePaddedTagNotTheShownText) {
  for (auto [name, size] : {std::pair{"big", 20000}, std::pair{"small", 9}, std::pair{"mid", 1000}}) {
    std::string path = temp.WriteFile(name, std::string(static_cast<std::size_t>(size), 'x'));
    AddFile(load, path);
  }
  sortFileList(state.list, frontEnd, 8);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"small", "mid", "big"}));
  EXPECT_EQ(Column(kColSortKey)[0], "000000000009");
}

TEST_F(SortTest, UnsortedOnANeverSortedListKeepsTheOrder) {
  AddFiles({"c", "a", "b"});
  const auto before = Column(kColOldName);
  sortFileList(state.list, frontEnd, 21);
  EXPECT_EQ(Column(kColOldName), before);
  EXPECT_EQ(state.list.sortKey, kColListPosition);
}

TEST_F(SortTest, UnsortedGoesBackToTheOrderOfTheLastRefresh) {
  AddFiles({"c", "a", "b"});
  const auto loaded = Column(kColOldName);
  sortFileList(state.list, frontEnd, 3);
  ASSERT_NE(Column(kColOldName), loaded);
  mnuViewSortingUnsorted(state.list, frontEnd);
  EXPECT_EQ(Column(kColOldName), loaded);
  EXPECT_EQ(CheckedSortMenuEntry(state.list), 0);
}

TEST_F(SortTest, UnknownColumnChangesNothing) {
  AddFiles({"c", "a", "b"});
  state.list.sortKey = kColNewName;
  const auto before = Column(kColOldName);
  for (int head : {1, 9, 15, 20, 22, 0, -3}) {
    sortFileList(state.list, frontEnd, head);
    EXPECT_EQ(Column(kColOldName), before) << "head " << head;
    EXPECT_EQ(state.list.sortKey, kColNewName);
  }
}

TEST_F(SortTest, SecondClickOnTheSameHeadSortsDescending) {
  AddFiles({"a", "b", "c"});
  ClickColumnHead(state.list, frontEnd, 3);
  EXPECT_EQ(state.list.sortOrder, 0);
  ClickColumnHead(state.list, frontEnd, 3);
  EXPECT_EQ(state.list.sortOrder, 1);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"c", "b", "a"}));
  ClickColumnHead(state.list, frontEnd, 3);
  EXPECT_EQ(state.list.sortOrder, 0) << "a third click goes back to ascending";
}

TEST_F(SortTest, ClickOnAnotherHeadSortsAscending) {
  AddFiles({"a", "b"});
  ClickColumnHead(state.list, frontEnd, 3);
  ClickColumnHead(state.list, frontEnd, 3);
  ASSERT_EQ(state.list.sortOrder, 1);
  ClickColumnHead(state.list, frontEnd, 4);
  EXPECT_EQ(state.list.sortOrder, 0);
  EXPECT_EQ(state.list.lastClickedHead, 4);
}

TEST_F(SortTest, MenuEntriesComeInPairsPerHead) {
  AddFiles({"a", "b"});
  mnuViewSortingSorted(state.list, frontEnd, 1);
  EXPECT_EQ(state.list.sortKey, 1);
  EXPECT_EQ(state.list.sortOrder, 0);
  EXPECT_EQ(CheckedSortMenuEntry(state.list), 1);
  mnuViewSortingSorted(state.list, frontEnd, 4);
  EXPECT_EQ(state.list.sortKey, 2);
  EXPECT_EQ(state.list.sortOrder, 1);
  EXPECT_EQ(CheckedSortMenuEntry(state.list), 4);
  mnuViewSortingSorted(state.list, frontEnd, 14);
  EXPECT_EQ(state.list.sortKey, kColSize);
  EXPECT_EQ(CheckedSortMenuEntry(state.list), 14);
}

TEST_F(SortTest, EqualTextsKeepTheirOrder) {
  AddFiles({"one/x.txt", "two/x.txt", "three/x.txt"});
  mnuViewSortingUnsorted(state.list, frontEnd);
  const auto folders = Column(kColPath);
  sortFileList(state.list, frontEnd, 3);
  EXPECT_EQ(Column(kColPath), folders);
}

}  // namespace
}  // namespace nomra::core
