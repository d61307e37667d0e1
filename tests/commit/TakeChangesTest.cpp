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
  commit::CommitServices services;
};

TEST_F(TakeChanges, WithoutTheSecurityQuestionNothingIsAskedAndTheFilesAreRenamed) {
  AddRow("a");
  Rename("a", "x");

  const std::optional<commit::CommitResult> result = commit::takeChanges(Commit(), preview, "TakeChanges1", services);

  ASSERT_TRUE(result.has_value());
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
  EXPECT_EQ(state.changedCount, 0) << "the list was refreshed";
}

TEST_F(TakeChanges, WithTheSecurityQuestionAYesRenames) {
  options.securityQuestions[1] = true;
  frontEnd.answers = {core::Answer::Yes};
  AddRow("a");
  Rename("a", "x");

  const std::optional<commit::CommitResult> result = commit::takeChanges(Commit(), preview, "", services);

  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText03");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap03");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNo);
  EXPECT_TRUE(result.has_value());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

TEST_F(TakeChanges, WithTheSecurityQuestionANoChangesNothing) {
  options.securityQuestions[1] = true;
  frontEnd.answers = {core::Answer::No};
  AddRow("a");
  Rename("a", "x");

  const std::optional<commit::CommitResult> result = commit::takeChanges(Commit(), preview, "TakeChanges1", services);

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

  commit::takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

TEST_F(TakeChanges, TheDialogVariantIsNotBuiltAndDoesNothing) {
  AddRow("a");
  Rename("a", "x");

  const std::optional<commit::CommitResult> result = commit::takeChanges(Commit(), preview, "TakeChanges2", services);

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
  services.showNotRenamed = [&](const commit::CommitResult& result) {
    ++shown;
    EXPECT_EQ(TextKeys(result), Names{"MsgText05"});
    return commit::NotRenamedChoice::RemoveRenamed;
  };

  commit::takeChanges(Commit(), preview, "TakeChanges1", services);

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
  services.showNotRenamed = [&](const commit::CommitResult&) {
    ++shown;
    return commit::NotRenamedChoice::RemoveRenamed;
  };

  commit::takeChanges(Commit(), preview, "TakeChanges1", services);

  EXPECT_EQ(shown, 0);
  EXPECT_EQ(state.list.Count(), 1);
}

TEST_F(TakeChanges, RemovingAllRowsWithYesTakesTheirChangesFirst) {
  commit::DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  Rename("a", "b");
  Rename("b", "a");
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_TRUE(core::deleteFromList(List(), rowCommitter, window.delListTag));

  EXPECT_TRUE(state.list.Empty());
  EXPECT_EQ(ContentOf("b"), "content of a");
  EXPECT_EQ(ContentOf("a"), "content of b");
  EXPECT_TRUE(committer.LastResult().notRenamed.empty());
}

TEST_F(TakeChanges, RemovingOneRowWithYesRenamesThatRowAlone) {
  commit::DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_TRUE(core::btnBarLeftDel1File(List(), rowCommitter, Row("a").position));

  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x"}));
  EXPECT_EQ(Keys(), Names{PathOf("b")});
}

TEST_F(TakeChanges, RemovingRowsWithPendingChangesRenamesEachOneAlone) {
  commit::DiskCommitter committer(Commit(), services);
  rowCommitter = &committer;
  AddRow("a");
  AddRow("b");
  AddRow("c");
  Rename("a", "x");
  Rename("c", "b");  // b stays and keeps its name
  window.delListTag = "DelList4";
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_TRUE(core::deleteFromList(List(), rowCommitter, window.delListTag));

  EXPECT_EQ(NamesOnDisk(), (Names{"b", "c", "x"}));
  EXPECT_EQ(Keys(), Names{PathOf("b")});
  EXPECT_EQ(TextKeys(committer.LastResult()), Names{"MsgText05"});
}

}  // namespace
}  // namespace nomra::testing
