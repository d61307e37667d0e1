// The whole list in one planned batch: which rows are renamed, what the disk
// holds afterwards and what the report says.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "commit/CommitExecution.h"
#include "commit/CommitFixture.h"
#include "commit/NotRenamedReport.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using WholeListCommit = CommitTest;

TEST_F(WholeListCommit, ChainWithItsFirstRowFirstGoesThroughATemporaryName) {
  AddRow("A");
  AddRow("B");
  Rename("A", "B");
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), (Names{"B", "C"}));
  EXPECT_EQ(ContentOf("B"), "content of A");
  EXPECT_EQ(ContentOf("C"), "content of B");
  ASSERT_FALSE(fileSystem.renames.empty());
  EXPECT_EQ(fileSystem.renames[0].second, PathOf("B") + std::string(commit::kTemporaryMark));
  EXPECT_EQ(Keys(), (Names{PathOf("B"), PathOf("C")}));
  EXPECT_EQ(Column(core::kColOldName), (Names{"B", "C"}));
  EXPECT_EQ(state.changedCount, 0);
}

TEST_F(WholeListCommit, ChainWithItsLastRowFirstNeedsNoTemporaryName) {
  AddRow("B");
  AddRow("A");
  Rename("A", "B");
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), (Names{"B", "C"}));
  EXPECT_EQ(ContentOf("B"), "content of A");
  EXPECT_EQ(ContentOf("C"), "content of B");
  EXPECT_EQ(fileSystem.TemporaryRenames(), 0);
  EXPECT_EQ(Keys(), (Names{PathOf("B"), PathOf("C")}));
}

TEST_F(WholeListCommit, SwapGivesEachFileTheOthersName) {
  AddRow("A");
  AddRow("B");
  Rename("A", "B");
  Rename("B", "A");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B"}));
  EXPECT_EQ(ContentOf("B"), "content of A");
  EXPECT_EQ(ContentOf("A"), "content of B");
  EXPECT_EQ(Keys(), (Names{PathOf("A"), PathOf("B")}));
  EXPECT_EQ(state.list.Item(1)[core::kColOldName], "B");
  EXPECT_EQ(state.list.Find(PathOf("B"))->position, 1) << "the first row now holds B";
}

TEST_F(WholeListCommit, CycleOfFourGoesRound) {
  for (const char* name : {"1", "2", "3", "4"}) AddRow(name);
  Rename("1", "2");
  Rename("2", "3");
  Rename("3", "4");
  Rename("4", "1");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(ContentOf("2"), "content of 1");
  EXPECT_EQ(ContentOf("3"), "content of 2");
  EXPECT_EQ(ContentOf("4"), "content of 3");
  EXPECT_EQ(ContentOf("1"), "content of 4");
  EXPECT_EQ(NamesOnDisk(), (Names{"1", "2", "3", "4"}));
}

TEST_F(WholeListCommit, CaseOnlyChangeEndsUnderTheNewSpelling) {
  AddRow("A.TXT");
  Rename("A.TXT", "a.txt");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"a.txt"});
  EXPECT_EQ(ContentOf("a.txt"), "content of A.TXT");
  EXPECT_EQ(Keys(), Names{PathOf("a.txt")});
}

TEST_F(WholeListCommit, CaseOnlyChangeUnderCaseInsensitiveRulesEndsUnderTheNewSpelling) {
  fileSystem.mode = CaseMode::InsensitiveRules;
  AddRow("A.TXT");
  Rename("A.TXT", "a.txt");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"a.txt"});
  EXPECT_EQ(ContentOf("a.txt"), "content of A.TXT");
  EXPECT_EQ(Keys(), Names{PathOf("a.txt")});
  EXPECT_EQ(Column(core::kColOldName), Names{"a.txt"});
}

TEST_F(WholeListCommit, CaseOnlyChangeOnAVolumeWithoutCaseGoesThroughATemporaryName) {
  fileSystem.mode = CaseMode::InsensitiveVolume;
  AddRow("A.TXT");
  Rename("A.TXT", "a.txt");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"a.txt"});
  EXPECT_EQ(ContentOf("a.txt"), "content of A.TXT");
  EXPECT_EQ(fileSystem.TemporaryRenames(), 1);
  EXPECT_EQ(Keys(), Names{PathOf("a.txt")});
}

TEST_F(WholeListCommit, ChainEndingOnAFileOutsideTheListRenamesNothing) {
  AddRow("A");
  AddRow("B");
  AddForeignFile("C");
  Rename("A", "B");
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), (Names{"MsgText05", "MsgText05"}));
  // Found from the end of the chain back: B first, then A, which waits on B.
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{base::Quoted(PathOf("B")), base::Quoted(PathOf("C"))}));
  EXPECT_EQ(result.notRenamed[1].arguments, (Names{base::Quoted(PathOf("A")), base::Quoted(PathOf("B"))}));
  EXPECT_EQ(result.notRenamed[0].number, 1);
  EXPECT_EQ(result.notRenamed[1].number, 2);
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B", "C"}));
  EXPECT_EQ(ContentOf("A"), "content of A");
  EXPECT_EQ(ContentOf("C"), "content of C");
  EXPECT_EQ(Column(core::kColOldName), (Names{"A", "B"}));
  EXPECT_EQ(state.changedCount, 2);
}

TEST_F(WholeListCommit, BlockedRowsReportTheKeyOfTheRowAtTheirRunningNumber) {
  AddRow("A");
  AddRow("B");
  AddForeignFile("C");
  Rename("A", "B");
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(result.notRenamed.size(), 2u);
  // The first blocked row found is B's, yet its report row carries row 1's key.
  EXPECT_EQ(result.notRenamed[0].rowKey, PathOf("A"));
  EXPECT_EQ(result.notRenamed[1].rowKey, PathOf("B"));
}

TEST_F(WholeListCommit, SecondRowToATakenNameIsBlockedAndAThirdRowGetsTheFreedName) {
  AddRow("A");
  AddRow("B");
  AddRow("C");
  Rename("A", "X");
  Rename("B", "X");
  Rename("C", "A");

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{base::Quoted(PathOf("B")), base::Quoted(PathOf("X"))}));
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B", "X"}));
  EXPECT_EQ(ContentOf("X"), "content of A");
  EXPECT_EQ(ContentOf("A"), "content of C");
  EXPECT_EQ(ContentOf("B"), "content of B");
  EXPECT_EQ(Keys(), (Names{PathOf("A"), PathOf("B"), PathOf("X")}));
  EXPECT_EQ(Row("B")[core::kColNewName], "X") << "the blocked row keeps its pending name";
}

TEST_F(WholeListCommit, RowToTheNameOfARowThatStaysIsBlocked) {
  AddRow("A");
  AddRow("B");
  Rename("A", "B");

  const commit::CommitResult result = CommitAll();

  EXPECT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B"}));
  EXPECT_EQ(ContentOf("B"), "content of B");
}

TEST_F(WholeListCommit, RemovingRenamedRowsKeepsTheFailedOnesAndTheOneThroughATemporaryName) {
  AddRow("A");
  AddRow("B");
  AddRow("D");
  AddRow("F");
  AddForeignFile("G");
  Rename("A", "B");  // through "Bÿ", so listed under that name
  Rename("B", "C");
  Rename("D", "E");
  Rename("F", "G");  // blocked by the foreign file

  const commit::CommitResult result = CommitAll();
  ASSERT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(result.renamed, (Names{PathOf("B") + std::string(commit::kTemporaryMark), PathOf("C"), PathOf("E")}));

  commit::ApplyNotRenamedChoice(Commit(), result, true);
  preview.Refresh();

  EXPECT_EQ(Keys(), (Names{PathOf("B"), PathOf("F")}));
  EXPECT_EQ(Row("B")[core::kColNewName], "B");
  EXPECT_EQ(Row("F")[core::kColNewName], "G");
}

TEST_F(WholeListCommit, NoActionKeepsEveryRow) {
  AddRow("A");
  AddRow("F");
  AddForeignFile("G");
  Rename("A", "B");
  Rename("F", "G");

  const commit::CommitResult result = CommitAll();
  commit::ApplyNotRenamedChoice(Commit(), result, false);

  EXPECT_EQ(state.list.Count(), 2);
}

TEST_F(WholeListCommit, BatchWithoutPendingChangesTouchesNothing) {
  options.protocolRenames = true;
  data.WriteFile("renamed.nrp", "earlier record\r\n");
  AddRow("A");
  AddRow("B");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(result.renamed.empty());
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "earlier record\r\n");
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B"}));
}

TEST_F(WholeListCommit, SuccessfulBatchClearsTheHistorySoUndoIsOff) {
  AddRow("A");
  AddRow("B");
  Rename("A", "first");
  Rename("A", "second");
  Rename("B", "other");
  ASSERT_GT(state.undoLevels, 0);

  const commit::CommitResult result = CommitAll();

  ASSERT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(state.undoLevels, 0);
  EXPECT_FALSE(window.commands.IsEnabled("mnuUndo"));
  for (int position = 1; position <= 2; ++position) {
    const core::FileEntry& row = state.list.Item(position);
    EXPECT_EQ(row[core::kColHistory0], row[core::kColNewName]);
    for (int column = core::kColHistoryFirst; column <= core::kColHistoryLast; ++column)
      EXPECT_TRUE(row[column].empty());
  }
  EXPECT_EQ(NamesOnDisk(), (Names{"other", "second"}));
}

TEST_F(WholeListCommit, UndoLevelsFollowTheFirstRowWhenItWasNotRenamed) {
  AddRow("A");
  AddRow("B");
  AddForeignFile("taken");
  Rename("A", "first");
  Rename("A", "taken");
  Rename("B", "other");
  const int levelsBefore = state.undoLevels;
  ASSERT_GT(levelsBefore, 0);

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(state.undoLevels, levelsBefore);
  EXPECT_TRUE(state.list.Item(2)[core::kColHistoryFirst].empty()) << "the renamed row lost its history";
}

TEST_F(WholeListCommit, ForbiddenCharactersAndAnEmptyNameAreReportedAndTheBatchGoesOn) {
  AddRow("a");
  AddRow("b");
  AddRow("c");
  AddRow("d");
  Rename("a", "<ERROR>");
  Rename("b", "");
  Rename("c", "x:y");
  Rename("d", "fine");

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), (Names{"MsgText11", "MsgText11", "MsgText11"}));
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{base::Quoted(PathOf("a")), base::Quoted(PathOf("<ERROR>"))}));
  EXPECT_EQ(result.notRenamed[1].arguments, (Names{base::Quoted(PathOf("b")), base::Quoted(PathOf(""))}));
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b", "c", "fine"}));
  EXPECT_EQ(fileSystem.renames.size(), 1u) << "only the good name reached the disk";
  EXPECT_EQ(Row("a")[core::kColNewName], "<ERROR>");
}

TEST_F(WholeListCommit, VanishedFileIsReportedWithoutNamesAndAgainAtItsRename) {
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");
  std::remove(PathOf("a").c_str());

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), (Names{"MsgText06", "MsgText11"}));
  const commit::ReportRow& vanished = result.notRenamed[0];
  EXPECT_EQ(vanished.arguments, (Names{"\"\"", "\"\""}));
  EXPECT_EQ(vanished.rowKey, PathOf("a"));
  EXPECT_EQ(vanished.systemText, std::strerror(ENOENT));
  EXPECT_EQ(result.notRenamed[1].arguments, (Names{base::Quoted(PathOf("a")), base::Quoted(PathOf("x"))}));
  EXPECT_EQ(NamesOnDisk(), Names{"y"});
  EXPECT_EQ(Row("a")[core::kColNewName], "x");
  EXPECT_EQ(Row("a").key, PathOf("a"));
}

TEST_F(WholeListCommit, NameOfARowWhoseFileVanishedIsNotTakenByAnother) {
  AddRow("B");
  AddRow("A");
  Rename("B", "Q");
  Rename("A", "B");
  std::remove(PathOf("B").c_str());

  const commit::CommitResult result = CommitAll();

  // Were A to take the name B, the row of B would take A's file along to Q.
  EXPECT_EQ(TextKeys(result), (Names{"MsgText06", "MsgText11", "MsgText05"}));
  EXPECT_EQ(NamesOnDisk(), Names{"A"});
  EXPECT_EQ(ContentOf("A"), "content of A");
  EXPECT_EQ(Keys(), (Names{PathOf("A"), PathOf("B")}));
}

TEST_F(WholeListCommit, FolderHoldingTheNewNameIsATakenTarget) {
  AddRow("a");
  files.MakeFolder("sub");
  Rename("a", "sub");

  const commit::CommitResult result = CommitAll();

  EXPECT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(fileSystem.TemporaryRenames(), 0);
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "sub"}));
}

TEST_F(WholeListCommit, RowsOfTwoFoldersSwapWithinEach) {
  AddRow("one/a");
  AddRow("one/b");
  AddRow("two/a");
  AddRow("two/b");
  state.list.ForEach([](core::FileEntry& row) { row[core::kColNewName] = row[core::kColOldName] == "a" ? "b" : "a"; });
  preview.Refresh();

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_EQ(ContentOf("one/b"), "content of one/a");
  EXPECT_EQ(ContentOf("one/a"), "content of one/b");
  EXPECT_EQ(ContentOf("two/b"), "content of two/a");
  EXPECT_EQ(ContentOf("two/a"), "content of two/b");
}

TEST_F(WholeListCommit, EachRenameCountsInTheStatusAndTheEndResetsIt) {
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");
  frontEnd.statusTexts.clear();

  CommitAll();

  ASSERT_GE(frontEnd.statusTexts.size(), 2u);
  EXPECT_EQ(frontEnd.statusTexts[0], "Renamed 1");
  EXPECT_EQ(frontEnd.statusTexts[1], "Renamed 2");
  EXPECT_EQ(state.statusCounter, 0);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

}  // namespace
}  // namespace nomra::testing
