#include "core/NameHistory.h"

#include <gtest/gtest.h>

#include "support/ListFixture.h"

namespace nomra {
namespace {

class HistoryTest : public testing::ListTest {
 protected:
  void Change(const std::string& first, const std::string& second) {
    SetNewName(1, first);
    SetNewName(2, second);
    refreshPreview(model);
  }
};

TEST_F(HistoryTest, TwoUndoStepsAfterThreeChangesGiveTheStateAfterTheFirst) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  Change("a2", "b2");
  Change("a3", "b3");
  ASSERT_EQ(model.undoLevels, 3);
  EXPECT_TRUE(mnuUndo(model));
  EXPECT_TRUE(mnuUndo(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  EXPECT_EQ(model.undoLevels, 1);
  EXPECT_TRUE(mnuUndo(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(model.undoLevels, 0);
  EXPECT_FALSE(model.commands.IsEnabled("mnuUndo")) << "no undo can be reached with no level left";
}

TEST_F(HistoryTest, UndoRestoresEveryRowWhateverTheScope) {
  AddFiles({"a", "b"});
  model.applyScope = 1;
  model.list.Item(1).selected = true;
  Change("a1", "b1");
  mnuUndo(model);
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HistoryTest, UndoAsksFirstWhenTheQuestionIsOn) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  model.securityQuestions[0] = true;
  frontEnd.answers = {Answer::No};
  EXPECT_FALSE(mnuUndo(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText07");
  frontEnd.answers = {Answer::Yes};
  EXPECT_TRUE(mnuUndo(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HistoryTest, UndoWithoutTheQuestionAsksNothing) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  mnuUndo(model);
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(HistoryTest, RejectBringsBackOldNamesAndWipesTheHistory) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  Change("a2", "b2");
  EXPECT_TRUE(mnuRejectChanges(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(model.undoLevels, 0);
  EXPECT_EQ(model.changedCount, 0);
  EXPECT_FALSE(model.commands.IsEnabled("mnuUndo"));
  EXPECT_FALSE(model.commands.IsEnabled("mnuRejectChanges")) << "a reject without changes can't be reached";
  EXPECT_EQ(model.list.Item(1)[kColHistory0], "a");
}

TEST_F(HistoryTest, RejectAsksWithNoAsTheDefaultWhenTheQuestionIsOn) {
  AddFiles({"a", "b"});
  Change("a1", "b1");
  model.securityQuestions[2] = true;
  frontEnd.answers = {Answer::No};
  EXPECT_FALSE(mnuRejectChanges(model));
  EXPECT_EQ(Column(kColNewName), (std::vector<std::string>{"a1", "b1"}));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText04");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap04");
  EXPECT_EQ(frontEnd.asked[0].style, MessageStyle::YesNoWarningDefaultNo);
}

}  // namespace
}  // namespace nomra
