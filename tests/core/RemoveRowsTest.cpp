#include <gtest/gtest.h>

#include "base/Fault.h"
#include "core/RemoveRows.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

class RemoveTest : public testing::ListTest {
 protected:
  RemoveTest() { rowCommitter = &committer; }

  // Four rows a, b, c, d; b and d have pending names; a and b are selected.
  void FourRows() {
    AddFiles({"a", "b", "c", "d"});
    SetNewName(2, "B");
    SetNewName(4, "D");
    state.list.Item(1).selected = true;
    state.list.Item(2).selected = true;
    preview.Refresh();
  }

  testing::RecordingCommitter committer;
};

TEST_F(RemoveTest, AllRowsWithoutChangesGoWithoutAQuestion) {
  AddFiles({"a", "b"});
  window.delListTag = "DelList1";
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(RemoveTest, EmptyTagRemovesAllRows) {
  AddFiles({"a", "b"});
  window.delListTag = "";
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 0);
}

TEST_F(RemoveTest, AllRowsWithChangesAskOnceAndYesTakesTheWholeList) {
  FourRows();
  window.delListTag = "dellist1";
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText21");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap03");
  EXPECT_EQ(frontEnd.asked[0].style, MessageStyle::YesNoCancelDefaultNo);
  EXPECT_EQ(committer.allCommits, 1);
  EXPECT_EQ(state.list.Count(), 0);
}

TEST_F(RemoveTest, CancelLeavesTheListAsItWas) {
  FourRows();
  window.delListTag = "DelList1";
  frontEnd.answers = {Answer::Cancel};
  EXPECT_FALSE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 4);
  EXPECT_EQ(committer.allCommits, 0);
}

TEST_F(RemoveTest, NoDropsThePendingChangesWithTheRows) {
  FourRows();
  window.delListTag = "DelList1";
  frontEnd.answers = {Answer::No};
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_EQ(committer.allCommits, 0);
}

TEST_F(RemoveTest, SelectedRowsGoAndEachIsTakenAloneOnYes) {
  FourRows();
  window.delListTag = "DelList2";
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"c", "d"}));
  // Rows go from position 1 up, so each removed row is at position 1 when taken.
  EXPECT_EQ(committer.committedRows, (std::vector<int>{1, 1}));
  EXPECT_EQ(state.changedCount, 1);
}

TEST_F(RemoveTest, SelectedRowsWithoutChangesAskNothing) {
  FourRows();
  state.list.Item(2).selected = false;
  window.delListTag = "DelList2";
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"b", "c", "d"}));
}

TEST_F(RemoveTest, UnselectedRowsGo) {
  FourRows();
  window.delListTag = "DelList3";
  frontEnd.answers = {Answer::No};
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(frontEnd.asked.size(), 1u) << "d has a pending change";
  EXPECT_TRUE(committer.committedRows.empty());
}

TEST_F(RemoveTest, UnselectedWithNothingSelectedRemovesAllRows) {
  AddFiles({"a", "b", "c"});
  window.delListTag = "DelList3";
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 0);
}

TEST_F(RemoveTest, ChangedRowsGoAndEachIsTakenAloneOnYes) {
  FourRows();
  window.delListTag = "DelList4";
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"a", "c"}));
  // b is at position 2; after it goes, d is at position 3.
  EXPECT_EQ(committer.committedRows, (std::vector<int>{2, 3}));
}

TEST_F(RemoveTest, ChangedRowsDoNothingWithoutChanges) {
  AddFiles({"a", "b"});
  window.delListTag = "DelList4";
  EXPECT_FALSE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 2);
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(RemoveTest, UnchangedRowsGoWithoutAQuestion) {
  FourRows();
  window.delListTag = "DelList5";
  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"b", "d"}));
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(RemoveTest, UnknownVariantDoesNothing) {
  FourRows();
  window.delListTag = "DelList9";
  EXPECT_FALSE(deleteFromList(List(), rowCommitter, window.delListTag));
  EXPECT_EQ(state.list.Count(), 4);
}

TEST_F(RemoveTest, SingleRowWithAChangeAsksAndYesTakesItAlone) {
  FourRows();
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(btnBarLeftDel1File(List(), rowCommitter, 2));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText15");
  EXPECT_EQ(committer.committedRows, (std::vector<int>{2}));
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"a", "c", "d"}));
}

TEST_F(RemoveTest, SingleRowCancelKeepsIt) {
  FourRows();
  frontEnd.answers = {Answer::Cancel};
  EXPECT_FALSE(btnBarLeftDel1File(List(), rowCommitter, 2));
  EXPECT_EQ(state.list.Count(), 4);
}

TEST_F(RemoveTest, SingleRowWithoutAChangeGoesWithoutAQuestion) {
  FourRows();
  EXPECT_TRUE(btnBarLeftDel1File(List(), rowCommitter, 1));
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(state.list.Count(), 3);
  EXPECT_EQ(frontEnd.statusTexts.back(), "3 files in 1 folders, 2 changed");
}

TEST_F(RemoveTest, WithoutACommitterYesIsAFaultAndNothingIsLost) {
  FourRows();
  rowCommitter = nullptr;
  window.delListTag = "DelList4";
  frontEnd.answers = {Answer::Yes};
  EXPECT_THROW(deleteFromList(List(), rowCommitter, window.delListTag), base::RuntimeFault);
  EXPECT_EQ(state.list.Count(), 4);
}

}  // namespace
}  // namespace nomra::core
