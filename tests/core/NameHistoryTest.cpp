#include <gtest/gtest.h>

#include "core/NameHistory.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

class HistoryTest : public testing::ListTest {
 protected:
  void Change(const std::string& first, const std::string& second) {
    SetNewName(1, first);
    SetNewName(2, second);
    preview.Refresh();
  }
};

TEST_F(HistoryTest, TwoUndoStepsAfterThreeChangesGiveTheStateAfterTheFirst) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  Change("a2", "b2");
  Change("a3", "b3");
  ASSERT_EQ(state.undoLevels, 3);
  EXPECT_TRUE(mnuUndo(List(), options.securityQuestions[0]));
  EXPECT_TRUE(mnuUndo(List(), options.securityQuestions[0]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  EXPECT_EQ(state.undoLevels, 1);
  EXPECT_TRUE(mnuUndo(List(), options.securityQuestions[0]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(state.undoLevels, 0);
  EXPECT_FALSE(window.commands.IsEnabled("mnuUndo")) << "no undo can be reached with no level left";
}

TEST_F(HistoryTest, UndoRestoresEveryRowWhateverTheScope) {
  AddFiles({"a", "b"});
  state.applyScope = 1;
  state.list.Item(1).selected = true;
  Change("a1", "b1");
  mnuUndo(List(), options.securityQuestions[0]);
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HistoryTest, UndoAsksFirstWhenTheQuestionIsOn) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  options.securityQuestions[0] = true;
  frontEnd.answers = {Answer::No};
  EXPECT_FALSE(mnuUndo(List(), options.securityQuestions[0]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText07");
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(mnuUndo(List(), options.securityQuestions[0]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HistoryTest, UndoWithoutTheQuestionAsksNothing) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  mnuUndo(List(), options.securityQuestions[0]);
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(HistoryTest, RejectBringsBackOldNamesAndWipesTheHistory) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  Change("a2", "b2");
  EXPECT_TRUE(mnuRejectChanges(List(), options.securityQuestions[2]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(state.undoLevels, 0);
  EXPECT_EQ(state.changedCount, 0);
  EXPECT_FALSE(window.commands.IsEnabled("mnuUndo"));
  EXPECT_FALSE(window.commands.IsEnabled("mnuRejectChanges")) << "a reject without changes can't be reached";
  EXPECT_EQ(state.list.Item(1)[kColHistory0], "a");
}

TEST_F(HistoryTest, RejectAsksWithNoAsTheDefaultWhenTheQuestionIsOn) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  options.securityQuestions[2] = true;
  frontEnd.answers = {Answer::No};
  EXPECT_FALSE(mnuRejectChanges(List(), options.securityQuestions[2]));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText04");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap04");
  EXPECT_EQ(frontEnd.asked[0].style, MessageStyle::YesNoWarningDefaultNo);
}

}  // namespace
}  // namespace nomra::core
