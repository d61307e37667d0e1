// One row alone, as the removal commands take it: no plan, no temporary name.
#include <gtest/gtest.h>

#include "commit/CommitFixture.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using SingleRowCommit = CommitTest;

TEST_F(SingleRowCommit, RenamesThatRowOnlyAndListsNothingAsRenamed) {
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");

  const commit::CommitResult result = CommitRow(Row("a").position);

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(result.renamed.empty());
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x"}));
  EXPECT_EQ(ContentOf("x"), "content of a");
  EXPECT_EQ(Row("x").key, PathOf("x"));
  EXPECT_EQ(Row("b")[core::kColNewName], "y") << "the other row keeps its pending name";
  EXPECT_EQ(state.changedCount, 1);
}

TEST_F(SingleRowCommit, HistoryColumnsThatHoldANameTakeTheNewOneAndEmptyOnesStayEmpty) {
  AddRow("a");
  Rename("a", "first");
  Rename("a", "second");
  core::FileEntry& row = Row("a");
  ASSERT_FALSE(row[core::kColHistoryFirst].empty());
  ASSERT_TRUE(row[core::kColHistoryLast].empty());

  CommitRow(row.position);

  const core::FileEntry& renamed = Row("second");
  EXPECT_EQ(renamed[core::kColHistory0], "second");
  EXPECT_EQ(renamed[core::kColHistoryFirst], "second");
  EXPECT_TRUE(renamed[core::kColHistoryLast].empty());
  EXPECT_EQ(NamesOnDisk(), Names{"second"});
}

TEST_F(SingleRowCommit, TakenNameIsReportedWithoutATemporaryName) {
  AddRow("a");
  AddRow("b");
  Rename("a", "b");
  Rename("b", "c");

  const commit::CommitResult result = CommitRow(Row("a").position);

  ASSERT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{base::Quoted(PathOf("a")), base::Quoted(PathOf("b"))}));
  EXPECT_EQ(result.notRenamed[0].rowKey, PathOf("a"));
  EXPECT_EQ(fileSystem.TemporaryRenames(), 0);
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b"}));
  EXPECT_EQ(ContentOf("b"), "content of b");
  EXPECT_EQ(Row("a")[core::kColNewName], "b");
  EXPECT_FALSE(Row("a")[core::kColHistoryFirst].empty()) << "a failed rename leaves the history alone";
}

TEST_F(SingleRowCommit, RowWithoutPendingChangeTouchesNoFileButItsHistoryTakesItsName) {
  AddRow("a");
  Rename("a", "x");
  Rename("a", "a");
  core::FileEntry& row = Row("a");
  ASSERT_EQ(row[core::kColHistory0], "x");

  const commit::CommitResult result = CommitRow(row.position);

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(Row("a")[core::kColHistory0], "a");
}

TEST_F(SingleRowCommit, RenameIsWrittenToTheProtocolWhenRenamesAreLogged) {
  options.protocolRenames = true;
  AddRow("a");
  Rename("a", "x");

  CommitRow(1);

  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "20040315142305\"" + files.Path() + "\"a\"x\r\n");
}

TEST_F(SingleRowCommit, ForbiddenNameIsRefusedBeforeTheDisk) {
  AddRow("a");
  Rename("a", "a|b");

  const commit::CommitResult result = CommitRow(1);

  EXPECT_EQ(TextKeys(result), Names{"MsgText11"});
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"a"});
}

}  // namespace
}  // namespace nomra::testing
