#include <gtest/gtest.h>

#include "base/Fault.h"
#include "shell/CloseQuestions.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::shell {
namespace {

class FailingCommitter final : public core::RowCommitter {
 public:
  void CommitAll() override { throw base::RuntimeFault("Cannot rename \"a.jpg\": disk gone"); }
  void CommitRow(int) override {}
};

class CloseQuestionsTest : public testing::ListTest {
 protected:
  CloseQuestionsTest() { rowCommitter = &committer; }

  // Two rows, one of them with a pending name.
  void ListWithOnePendingName() {
    AddFiles({"a.jpg", "b.jpg"});
    SetNewName(1, "renamed.jpg");
    preview.Refresh();
    ASSERT_EQ(state.changedCount, 1);
  }

  std::function<void()> StopRecording() {
    return [this] { ++recordingStops; };
  }

  testing::RecordingCommitter committer;
  int recordingStops = 0;
};

TEST_F(CloseQuestionsTest, CloseWithNothingPendingAsksNothing) {
  AddFiles({"a.jpg"});
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Close);
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(committer.allCommits, 0);
}

TEST_F(CloseQuestionsTest, RunningRecordingIsStoppedWhenTheUserSaysYes) {
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, true, StopRecording()), CloseDecision::Close);
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText30");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap11");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoCancelDefaultNo);
  EXPECT_EQ(recordingStops, 1);
}

TEST_F(CloseQuestionsTest, RunningRecordingIsLeftAloneWhenTheUserSaysNo) {
  frontEnd.answers = {core::Answer::No};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, true, StopRecording()), CloseDecision::Close);
  EXPECT_EQ(recordingStops, 0);
}

TEST_F(CloseQuestionsTest, CancelOnTheRecordingQuestionRefusesAtOnce) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Cancel, core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, true, StopRecording()), CloseDecision::Refuse);
  EXPECT_EQ(frontEnd.asked.size(), 1u) << "the pending names aren't asked about";
  EXPECT_EQ(recordingStops, 0);
  EXPECT_EQ(committer.allCommits, 0);
}

TEST_F(CloseQuestionsTest, PendingChangesAreTakenWhenTheUserSaysYes) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Close);
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText03");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap03");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoCancelDefaultNo);
  EXPECT_EQ(committer.allCommits, 1);
  EXPECT_TRUE(committer.committedRows.empty()) << "the whole list goes in one batch";
}

TEST_F(CloseQuestionsTest, PendingChangesAreLeftWhenTheUserSaysNo) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::No};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Close);
  EXPECT_EQ(committer.allCommits, 0);
}

TEST_F(CloseQuestionsTest, ClosingWithPendingChangesAndCancelKeepsTheList) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Cancel};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Refuse);
  EXPECT_EQ(committer.allCommits, 0);
  ASSERT_EQ(state.list.Count(), 2);
  EXPECT_EQ(Column(core::kColNewName), (std::vector<std::string>{"renamed.jpg", "b.jpg"}));
  EXPECT_TRUE(testing::Exists(temp.Path() + "a.jpg"));
}

TEST_F(CloseQuestionsTest, BothQuestionsAreAskedInTurn) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Yes, core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, true, StopRecording()), CloseDecision::Close);
  ASSERT_EQ(frontEnd.asked.size(), 2u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText30");
  EXPECT_EQ(frontEnd.asked[1].textKey, "MsgText03");
  EXPECT_EQ(recordingStops, 1);
  EXPECT_EQ(committer.allCommits, 1);
}

TEST_F(CloseQuestionsTest, YesWithoutACommitterKeepsTheWindowOpen) {
  rowCommitter = nullptr;
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Refuse);
  EXPECT_EQ(state.list.Count(), 2);
}

TEST_F(CloseQuestionsTest, FaultWhileTakingTheChangesIsShownAndTheWindowStays) {
  FailingCommitter failing;
  rowCommitter = &failing;
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_EQ(AskBeforeClose({state, frontEnd, rowCommitter}, false, StopRecording()), CloseDecision::Refuse);
  ASSERT_EQ(frontEnd.faults.size(), 1u);
  EXPECT_NE(frontEnd.faults[0].find("disk gone"), std::string::npos);
}

class CloseSequenceTest : public CloseQuestionsTest {
 protected:
  CloseSequenceTest() {
    closing.columnWidths = {3000, 3000, 3000, 1800, 1800, 1800, 1400, 500};
    closing.previewStyle = "Details";
    closing.ws = 0;
    closing.x = 10;
    closing.y = 20;
    closing.w = 11000;
    closing.h = 8000;
    closing.splash = 1;
  }

  bool Written(const char* section, const char* key) const {
    return !Ini(settingsFile).ReadString(section, key).empty();
  }

  MainWindowSettings closing;
  std::string settingsFile = temp.Path() + "settings.nrp";
};

TEST_F(CloseSequenceTest, CloseWritesLayoutAndSettings) {
  EXPECT_EQ(
      RunCloseSequence(closing, {state, frontEnd, rowCommitter}, options, Ini(settingsFile), false, StopRecording()),
      CloseDecision::Close);
  EXPECT_EQ(Ini(settingsFile).ReadInt("Main", "Col8"), 500);
  EXPECT_EQ(Ini(settingsFile).ReadInt("Main", "x"), 10);
  EXPECT_EQ(Ini(settingsFile).ReadInt("Settings", "splash"), 1);
  EXPECT_TRUE(Written("FrmOpen", "ShowHiddenFiles"));
}

TEST_F(CloseSequenceTest, LayoutIsWrittenBeforeTheQuestionsAndTheRestAfter) {
  bool layoutBefore = false;
  bool restBefore = true;
  const std::function<void()> stop = [&] {
    layoutBefore = Written("Main", "Col1") && Written("Settings", "PreviewStyle");
    restBefore = Written("Settings", "splash");
  };
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_EQ(RunCloseSequence(closing, {state, frontEnd, rowCommitter}, options, Ini(settingsFile), true, stop),
            CloseDecision::Close);
  EXPECT_TRUE(layoutBefore);
  EXPECT_FALSE(restBefore);
  EXPECT_TRUE(Written("Settings", "splash"));
}

TEST_F(CloseSequenceTest, CancelledRecordingQuestionLeavesTheRestUnwritten) {
  frontEnd.answers = {core::Answer::Cancel};
  EXPECT_EQ(
      RunCloseSequence(closing, {state, frontEnd, rowCommitter}, options, Ini(settingsFile), true, StopRecording()),
      CloseDecision::Refuse);
  EXPECT_TRUE(Written("Main", "Col1"));
  EXPECT_TRUE(Written("Main", "ws"));
  EXPECT_FALSE(Written("Settings", "splash"));
  EXPECT_FALSE(Written("Dialogs", "BackColor"));
}

TEST_F(CloseSequenceTest, CancelledPendingChangesQuestionStillWritesEverySetting) {
  ListWithOnePendingName();
  frontEnd.answers = {core::Answer::Cancel};
  EXPECT_EQ(
      RunCloseSequence(closing, {state, frontEnd, rowCommitter}, options, Ini(settingsFile), false, StopRecording()),
      CloseDecision::Refuse);
  EXPECT_TRUE(Written("Main", "Col1"));
  EXPECT_TRUE(Written("Settings", "splash"));
  EXPECT_TRUE(Written("FrmOpen", "ShowHiddenFiles"));
  EXPECT_EQ(committer.allCommits, 0);
  EXPECT_EQ(state.list.Count(), 2);
}

}  // namespace
}  // namespace nomra::shell
