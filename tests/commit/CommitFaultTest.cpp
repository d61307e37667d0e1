// Renames the file system refuses, or claims to make and doesn't: each is a
// report row, and the list still matches the disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "commit/CommitExecution.h"
#include "commit/CommitFixture.h"
#include "commit/DiskRename.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using CommitFaults = CommitTest;

TEST_F(CommitFaults, AccessDeniedOnTheThirdRenameReportsThatRowAndTheOthersGoOn) {
  for (const char* name : {"a", "b", "c", "d"}) AddRow(name);
  for (const char* name : {"a", "b", "c", "d"}) Rename(name, std::string(name) + "1");
  fileSystem.refuseWith[3] = EACCES;

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText11"});
  EXPECT_EQ(result.notRenamed[0].rowKey, PathOf("c"));
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{base::Quoted(PathOf("c")), base::Quoted(PathOf("c1"))}));
  EXPECT_EQ(NamesOnDisk(), (Names{"a1", "b1", "c", "d1"}));
  EXPECT_EQ(Keys(), (Names{PathOf("a1"), PathOf("b1"), PathOf("c"), PathOf("d1")}));
  EXPECT_EQ(Row("c")[core::kColNewName], "c1");
  EXPECT_EQ(result.renamed, (Names{PathOf("a1"), PathOf("b1"), PathOf("d1")}));
}

TEST_F(CommitFaults, RenameReportedDoneThatChangedNothingIsAFailure) {
  AddRow("a");
  AddRow("b");
  Rename("a", "x");
  Rename("b", "y");
  fileSystem.pretendOnly.insert(2);
  frontEnd.statusTexts.clear();

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText06"});
  EXPECT_EQ(result.notRenamed[0].systemText, commit::kRenameDidNothingText);
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x"}));
  EXPECT_EQ(Keys(), (Names{PathOf("b"), PathOf("x")}));
  EXPECT_EQ(Row("b")[core::kColNewName], "y");
  EXPECT_EQ(result.renamed, Names{PathOf("x")});
  EXPECT_EQ(std::count(frontEnd.statusTexts.begin(), frontEnd.statusTexts.end(), "Renamed 2"), 0)
      << "a rename that did nothing is not counted";
}

TEST_F(CommitFaults, UnexpectedErrorCarriesTheSystemsDescription) {
  AddRow("a");
  Rename("a", "x");
  fileSystem.refuseWith[1] = EIO;

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText06"});
  EXPECT_EQ(result.notRenamed[0].systemText, std::strerror(EIO));
  EXPECT_EQ(NamesOnDisk(), Names{"a"});
}

TEST_F(CommitFaults, NameTakenAfterThePlanIsNeverOverwritten) {
  AddRow("a");
  Rename("a", "x");
  fileSystem.beforeRename = [&](const std::string&, const std::string& to) {
    if (!Exists(to)) files.WriteFile("x", "came in between");
  };

  const commit::CommitResult result = CommitAll();

  // The name taken meanwhile sends the row through a temporary name, whose
  // final rename is then refused: the file waits there, reported, and the
  // newcomer keeps its name.
  ASSERT_EQ(TextKeys(result), Names{"MsgText05"});
  EXPECT_EQ(ContentOf("x"), "came in between");
  const std::string temporary = PathOf("x") + std::string(commit::kTemporaryMark);
  EXPECT_EQ(ReadWholeFile(temporary), "content of a");
  EXPECT_FALSE(Exists(PathOf("a")));
  EXPECT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1).key, temporary);
}

TEST_F(CommitFaults, RowAheadThatFailsLeavesTheRowBehindUnderItsTemporaryName) {
  AddRow("A");
  AddRow("B");
  Rename("A", "B");  // first rename: A to "Bÿ"
  Rename("B", "C");  // second rename: refused
  fileSystem.refuseWith[2] = EACCES;
  const std::string temporary = PathOf("B") + std::string(commit::kTemporaryMark);

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), (Names{"MsgText11", "MsgText05"}));
  EXPECT_EQ(result.notRenamed[1].arguments, (Names{base::Quoted(temporary), base::Quoted(PathOf("B"))}));
  EXPECT_EQ(result.notRenamed[1].rowKey, temporary);
  EXPECT_EQ(NamesOnDisk(), (Names{"B", "B" + std::string(commit::kTemporaryMark)}));
  EXPECT_EQ(ReadWholeFile(temporary), "content of A");
  EXPECT_EQ(ContentOf("B"), "content of B");
  EXPECT_EQ(Keys(), (Names{PathOf("B"), temporary}));
}

TEST_F(CommitFaults, FailedMoveIntoATemporaryNameLeavesAFileOfThatNameAlone) {
  AddRow("A");
  AddRow("B");
  const std::string temporary = PathOf("B") + std::string(commit::kTemporaryMark);
  AddForeignFile("B" + std::string(commit::kTemporaryMark), "not the list's");
  Rename("A", "B");
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  // A can't move into "Bÿ"; B still moves on to C; "Bÿ" is none of the list's.
  ASSERT_EQ(TextKeys(result), (Names{"MsgText05", "MsgText11"}));
  EXPECT_EQ(result.notRenamed[1].arguments, (Names{base::Quoted(temporary), base::Quoted(PathOf("B"))}));
  EXPECT_EQ(ReadWholeFile(temporary), "not the list's");
  EXPECT_EQ(ContentOf("A"), "content of A");
  EXPECT_EQ(ContentOf("C"), "content of B");
  EXPECT_FALSE(Exists(PathOf("B")));
  EXPECT_EQ(Keys(), (Names{PathOf("A"), PathOf("C")}));
}

}  // namespace
}  // namespace nomra::testing
