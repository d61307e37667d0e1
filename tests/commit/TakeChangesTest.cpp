// The take-changes command, the not-renamed report's choice and the
// removal commands that commit through the disk committer.
#include <gtest/gtest.h>

#include "commit/CommitFixture.h"
#include "commit/DiskCommitter.h"
#include "commit/TakeChanges.h"
#include "core/RemoveRows.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

class TakeChanges : public CommitTest {
 protected:
  TakeChanges() { services.clock = FixedLocalTime; }
  CommitServices services;
};

TEST_F(TakeChanges, WithoutTheSecurityQuestionNothingIsAskedAndTheFilesAreRenamed) {
  AddRow("a");
  Rename("a", "x");

  const std::optional<CommitResult> result = takeChanges(Commit(), preview, "TakeChanges1", services);

  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
  EXPECT_EQ(state.changedCount, 0) << "the list was refreshed";
}

TEST_F(TakeChanges, WithTheSecurityQuestionAYesRenames) {
  options.securityQuestions[1] = true;
  frontEnd.answers = {Answer::Yes};
  AddRow("a");
  Rename("a", "x");

  const std::optional<CommitResult> result = takeChanges(Commit(), preview, "", services);

  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText03");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap03");
  EXPECT_EQ(frontEnd.asked[0].style, MessageStyle::YesNo);
  EXPECT_TRUE(result.has_value());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

TEST_F(TakeChanges, WithTheSecurityQuestionANoChangesNothing) {
  options.securityQuestions[1] = true;
  frontEnd.answers = {Answer::No};
  AddRow("a");
  Rename("a", "x");

  const std::optional<CommitResult> result = takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_FALSE(result.has_value());
  EXPECT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(NamesOnDisk(), Names{"a"});
  EXPECT_EQ(state.changedCount, 1);
}

TEST_F(TakeChanges, OtherSecurityQuestionsAskNothing) {
  options.securityQuestions[0] = true;
  options.securityQuestions[2] = true;
  AddRow("a");
  Rename("a", "x");

  takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

TEST_F(TakeChanges, TheDialogVariantIsNotBuiltAndDoesNothing) {
  AddRow("a");
  Rename("a", "x");

  const std::optional<CommitResult> result = takeChanges(Commit(), preview, "TakeChanges2", services);

  EXPECT_FALSE(result.has_value());
  EXPECT_EQ(NamesOnDisk(), Names{"a"});
}

TEST_F(TakeChanges, ReportIsShownAndRemovingRenamedRowsLeavesTheFailedOnes) {
  AddRow("a");
  AddRow("b");
  AddForeignFile("taken");
  Rename("a", "taken");
  Rename("b", "c");
  int shown = 0;
  services.showNotRenamed = [&](const CommitResult& result) {
    ++shown;
    EXPECT_EQ(TextKeys(result), Names{"MsgText05"});
    return NotRenamedChoice::RemoveRenamed;
  };

  takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_EQ(shown, 1);
  EXPECT_EQ(Keys(), Names{PathOf("a")});
  EXPECT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.changedCount, 1);
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "c", "taken"}));
}

TEST_F(TakeChanges, ReportIsNotShownWhenEverythingWasRenamed) {
  AddRow("a");
  Rename("a", "x");
  int shown = 0;
  services.showNotRenamed = [&](const CommitResult&) {
    ++shown;
    return NotRenamedChoice::RemoveRenamed;
  };

  takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_EQ(shown, 0);
  EXPECT_EQ(state.list.Count(), 1);
}

TEST_F(TakeChanges, RemovingAllRowsWithYesTakesTheirChangesFirst) {
  DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  Rename("a", "b");
  Rename("b", "a");
  frontEnd.answers = {Answer::Yes};

  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));

  EXPECT_TRUE(state.list.Empty());
  EXPECT_EQ(ContentOf("b"), "content of a");
  EXPECT_EQ(ContentOf("a"), "content of b");
  EXPECT_TRUE(committer.LastResult().notRenamed.empty());
}

TEST_F(TakeChanges, RemovingOneRowWithYesRenamesThatRowAlone) {
  DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");
  frontEnd.answers = {Answer::Yes};

  EXPECT_TRUE(btnBarLeftDel1File(List(), rowCommitter, Row("a").position));

  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x"}));
  EXPECT_EQ(Keys(), Names{PathOf("b")});
}

TEST_F(TakeChanges, RemovingRowsWithPendingChangesRenamesEachOneAlone) {
  DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  AddRow("c");
  Rename("a", "x");
  Rename("c", "b");  // b stays and keeps its name
  window.delListTag = "DelList4";
  frontEnd.answers = {Answer::Yes};

  EXPECT_TRUE(deleteFromList(List(), rowCommitter, window.delListTag));

  EXPECT_EQ(NamesOnDisk(), (Names{"b", "c", "x"}));
  EXPECT_EQ(Keys(), Names{PathOf("b")});
  EXPECT_EQ(TextKeys(committer.LastResult()), Names{"MsgText05"});
}

}  // namespace
}  // namespace nomra::testing
