// Undo and reject through the window: the names the view shows and the
// states of the commands afterwards.
#include <QAction>

#include "core/FileEntry.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class HistoryTest : public WindowTest {
 protected:
  // Each name becomes the pending name of the row in turn, with a refresh after each.
  void ChangeInSteps(int position, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      SetNewName(position, name);
      window->RefreshPreview();
    }
  }
};

TEST_F(HistoryTest, TwoUndoStepsAfterThreeChangesShowTheFirstChange) {
  Open();
  AddFiles({"a.txt"});
  ChangeInSteps(1, {"one.txt", "two.txt", "three.txt"});

  window->RunMainToolKey("Undo");
  window->RunMainToolKey("Undo");

  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "one.txt");
  EXPECT_TRUE(MainTool("Undo")->isEnabled());
  window->RunMainToolKey("Undo");
  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "a.txt");
  EXPECT_FALSE(MainTool("Undo")->isEnabled());
  EXPECT_FALSE(MainTool("TakeChanges")->isEnabled());
}

TEST_F(HistoryTest, RejectPutsOldNamesBackAndLeavesNothingToUndo) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  ChangeInSteps(PositionOf("a.txt"), {"one.txt", "two.txt"});

  window->RunMainToolKey("RejectChanges");

  EXPECT_EQ(Shown(PositionOf("a.txt"), core::kColNewName).toString(), "a.txt");
  EXPECT_FALSE(Shown(PositionOf("a.txt"), core::kColOldName, Qt::ForegroundRole).isValid());
  EXPECT_FALSE(MainTool("Undo")->isEnabled());
  EXPECT_FALSE(Menu("mnuUndo")->isEnabled());
  EXPECT_FALSE(MainTool("RejectChanges")->isEnabled());
  EXPECT_EQ(Label("Status"), CountsText(2, 1, 0));
}

TEST_F(HistoryTest, SettingEveryNameBackAddsNoHistoryLevelAndDisablesTakeChanges) {
  Open();
  AddFiles({"a.txt"});
  ChangeInSteps(1, {"one.txt", "two.txt", "a.txt"});

  EXPECT_FALSE(MainTool("TakeChanges")->isEnabled());
  EXPECT_FALSE(Menu("mnuTakeChanges")->isEnabled());
  EXPECT_TRUE(MainTool("Undo")->isEnabled());
  // Had the return to the old name been a level of its own, one step back
  // would give "two.txt".
  window->RunMainToolKey("Undo");
  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "one.txt");
}

TEST_F(HistoryTest, UndoAnsweredNoToTheSecurityQuestionChangesNothing) {
  Open();
  AddFiles({"a.txt"});
  ChangeInSteps(1, {"one.txt", "two.txt"});
  window->Options().securityQuestions[0] = true;
  answers = {core::Answer::No};

  window->RunMainToolKey("Undo");

  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].message.textKey, "MsgText07");
  EXPECT_EQ(asked[0].text, LanguageText("Messages", "MsgText07"));
  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "two.txt");
}

TEST_F(HistoryTest, UndoAnsweredYesToTheSecurityQuestionTakesTheStep) {
  Open();
  AddFiles({"a.txt"});
  ChangeInSteps(1, {"one.txt", "two.txt"});
  window->Options().securityQuestions[0] = true;
  answers = {core::Answer::Yes};

  window->RunMainToolKey("Undo");

  EXPECT_EQ(asked.size(), 1u);
  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "one.txt");
}

}  // namespace
}  // namespace nomra::ui::testing
