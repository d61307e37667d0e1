// Undoing chosen renames on disk from the history window.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "base/Fault.h"
#include "commit/DiskRename.h"
#include "history/HistoryFixture.h"
#include "history/LoadHistory.h"

namespace nomra::testing {
namespace {

using Names = std::set<std::string>;
using Texts = std::vector<std::string>;
using UndoRenamings = HistoryTest;

TEST_F(UndoRenamings, AsksFirstWithBothParagraphsUnderAttention) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();

  UndoWithYes();

  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText18");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "msgCapAttention");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoWarningDefaultNo);
  EXPECT_EQ(frontEnd.asked[0].arguments, (Texts{"\n\n"}));
}

TEST_F(UndoRenamings, AnyAnswerButYesChangesNothing) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  const std::string before = Protocol();
  Load();
  SelectAll();

  frontEnd.answers.push_back(core::Answer::No);
  const auto outcome = history::UndoRenamings(list, services);

  EXPECT_FALSE(outcome.confirmed);
  EXPECT_EQ(NamesOnDisk(), (Names{"b"}));
  EXPECT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(Protocol(), before);
}

TEST_F(UndoRenamings, SelectedBlackRowGetsItsOldNameBackAndLeavesListAndProtocol) {
  CreateFiles({"b", "d"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  Load();
  Select({1});

  const auto outcome = UndoWithYes();

  EXPECT_EQ(outcome.undone, 1);
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "d"}));
  EXPECT_EQ(ReadWholeFile(files.Path() + "a"), "b");
  EXPECT_EQ(Column(2), (Texts{"c"}));
  EXPECT_EQ(Protocol(), Record("c", "d") + "\r\n");
}

TEST_F(UndoRenamings, RowsThatArentSelectedStayAsTheyAre) {
  CreateFiles({"b", "d"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  Load();

  const auto outcome = UndoWithYes();

  EXPECT_EQ(outcome.undone, 0);
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "d"}));
  EXPECT_EQ(list.rows.size(), 2u);
}

TEST_F(UndoRenamings, SelectedRedRowIsPassedOverAndStays) {
  CreateFiles({"d"});
  WriteProtocol({Record("a", "gone"), Record("c", "d")});
  Load();
  SelectAll();

  const auto outcome = UndoWithYes();

  EXPECT_EQ(outcome.undone, 1);
  EXPECT_TRUE(outcome.failures.empty());
  EXPECT_EQ(fileSystem.renamedFrom, (Texts{files.Path() + "d"}));
  EXPECT_EQ(Column(3), (Texts{"gone"}));
  EXPECT_EQ(Protocol(), Record("a", "gone") + "\r\n");
}

TEST_F(UndoRenamings, TakenOldNameFailsNeverReplacesAndKeepsTheRowInListAndProtocol) {
  CreateFiles({"a", "b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();

  const auto outcome = UndoWithYes();

  EXPECT_EQ(outcome.undone, 0);
  EXPECT_EQ(ReadWholeFile(files.Path() + "a"), "a");
  EXPECT_EQ(ReadWholeFile(files.Path() + "b"), "b");
  EXPECT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(Protocol(), Record("a", "b") + "\r\n");
  ASSERT_EQ(shownFailures.size(), 1u);
  EXPECT_EQ(shownFailures[0].textKey, "MsgText05");
  EXPECT_EQ(shownFailures[0].arguments, (Texts{"\"" + files.Path() + "b\"", "\"" + files.Path() + "a\""}));
}

TEST_F(UndoRenamings, FailureIsShownAtOnceBeforeTheNextRename) {
  CreateFiles({"a", "b", "d"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  Load();
  SelectAll();
  std::size_t renamesWhenShown = 0;
  services.showFailure = [&](const commit::ReportRow&) { renamesWhenShown = fileSystem.renamedFrom.size(); };

  UndoWithYes();

  EXPECT_EQ(renamesWhenShown, 1u);
  EXPECT_EQ(fileSystem.renamedFrom.size(), 2u);
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b", "c"}));
}

TEST_F(UndoRenamings, FileGoneSinceLoadingFailsAsAPathThatCantBeUsed) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();
  std::filesystem::remove(files.Path() + "b");

  UndoWithYes();

  ASSERT_EQ(shownFailures.size(), 1u);
  EXPECT_EQ(shownFailures[0].textKey, "MsgText11");
  EXPECT_EQ(list.rows.size(), 1u);
}

TEST_F(UndoRenamings, OtherFailureCarriesTheSystemsText) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();
  fileSystem.refuseWith = EIO;

  UndoWithYes();

  ASSERT_EQ(shownFailures.size(), 1u);
  EXPECT_EQ(shownFailures[0].textKey, "MsgText06");
  EXPECT_EQ(shownFailures[0].systemText, std::strerror(EIO));
  EXPECT_EQ(NamesOnDisk(), (Names{"b"}));
}

TEST_F(UndoRenamings, RenameThatReportsSuccessButChangesNothingFails) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();
  fileSystem.pretendOnly = true;

  UndoWithYes();

  ASSERT_EQ(shownFailures.size(), 1u);
  EXPECT_EQ(shownFailures[0].systemText, commit::kRenameDidNothingText);
  EXPECT_EQ(list.rows.size(), 1u);
}

TEST_F(UndoRenamings, OldNameThatNoFileMayHaveIsRefusedBeforeTheDiskIsTouched) {
  files.MakeFolder("other");
  CreateFiles({"b", "d"});
  WriteProtocol({Record("other/a", "b"), Record("", "d")});
  Load();
  SelectAll();

  UndoWithYes();

  EXPECT_TRUE(fileSystem.renamedFrom.empty());
  ASSERT_EQ(shownFailures.size(), 2u);
  EXPECT_EQ(shownFailures[0].textKey, "MsgText11");
  EXPECT_EQ(shownFailures[1].textKey, "MsgText11");
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "d", "other"}));
}

TEST_F(UndoRenamings, WithoutItsOwnWayAFailureIsShownByTheFrontEndByItsKeys) {
  CreateFiles({"a", "b"});
  WriteProtocol({Record("a", "b")});
  Load();
  SelectAll();
  services.showFailure = nullptr;

  UndoWithYes();

  ASSERT_EQ(frontEnd.asked.size(), 2u);
  EXPECT_EQ(frontEnd.asked[1].textKey, "MsgText05");
  EXPECT_EQ(frontEnd.asked[1].style, core::MessageStyle::OkWarning);
  EXPECT_EQ(frontEnd.asked[1].arguments.size(), 2u);
}

// B was renamed to C, then A to B: undoing B to C first finds B still taken.
TEST_F(UndoRenamings, ChainInTheWrongOrderLeavesTheFailedRowForASecondRun) {
  CreateFiles({"B", "C"});
  WriteProtocol({Record("B", "C"), Record("A", "B")});
  Load();
  ASSERT_EQ(Black(), (std::vector<bool>{true, true}));
  SelectAll();

  const auto first = UndoWithYes();

  EXPECT_EQ(first.undone, 1);
  ASSERT_EQ(first.failures.size(), 1u);
  EXPECT_EQ(first.failures[0].textKey, "MsgText05");
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "C"}));
  EXPECT_EQ(Protocol(), Record("B", "C") + "\r\n");

  Load();
  SelectAll();
  const auto second = UndoWithYes();

  EXPECT_EQ(second.undone, 1);
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B"}));
  EXPECT_EQ(ReadWholeFile(files.Path() + "A"), "B");
  EXPECT_EQ(ReadWholeFile(files.Path() + "B"), "C");
  EXPECT_EQ(Protocol(), "");
}

// A batch renamed A to B and B to C; its records stand in that order, and
// undoing A to B first frees B for the file now called C.
TEST_F(UndoRenamings, ChainInTheRightOrderIsUndoneInOneRun) {
  CreateFiles({"B", "C"});
  WriteProtocol({Record("A", "B"), Record("B", "C")});
  Load();
  SelectAll();

  const auto outcome = UndoWithYes();

  EXPECT_EQ(outcome.undone, 2);
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "B"}));
  EXPECT_EQ(ReadWholeFile(files.Path() + "A"), "B");
  EXPECT_EQ(ReadWholeFile(files.Path() + "B"), "C");
}

TEST_F(UndoRenamings, FileRenamedTwiceGoesBackOneStepPerRun) {
  CreateFiles({"C"});
  WriteProtocol({Record("A", "B"), Record("B", "C")});
  Load();
  SelectAll();

  const auto first = UndoWithYes();

  EXPECT_EQ(first.undone, 1);
  EXPECT_EQ(NamesOnDisk(), (Names{"B"}));
  EXPECT_EQ(Column(3), (Texts{"B"}));

  Load();
  SelectAll();
  UndoWithYes();

  EXPECT_EQ(NamesOnDisk(), (Names{"A"}));
  EXPECT_TRUE(list.rows.empty());
}

TEST_F(UndoRenamings, AfterASortTheRemainingRecordsAreWrittenInThatOrder) {
  CreateFiles({"y", "x", "z"});
  WriteProtocol({Record("c", "z"), Record("a", "x", "20050101000000"), Record("b", "y", "20030101000000")});
  Load();
  history::ClickHistoryHead(list, 2);  // a, b, c
  Select({2});

  UndoWithYes();

  EXPECT_EQ(Protocol(), Record("a", "x", "20050101000000") + "\r\n" + Record("c", "z") + "\r\n");
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x", "z"}));
}

TEST_F(UndoRenamings, UndoIsNotLoggedAsARenameOfItsOwn) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b"), Record("c", "gone")});
  Load();
  Select({1});

  UndoWithYes();

  EXPECT_EQ(Protocol(), Record("c", "gone") + "\r\n");
}

TEST_F(UndoRenamings, ProtocolThatCantBeWrittenIsAFaultAfterTheRenames) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  const std::string before = Protocol();
  Load();
  SelectAll();
  data.MakeFolder("renamed.tmp");

  EXPECT_THROW(UndoWithYes(), base::RuntimeFault);

  EXPECT_EQ(NamesOnDisk(), (Names{"a"}));
  EXPECT_EQ(Protocol(), before);
}

}  // namespace
}  // namespace nomra::testing
