// The command states and texts the window shows after its refresh.
#include <QAction>
#include <QColor>
#include <QComboBox>
#include <QMenuBar>
#include <QTimer>

#include "core/FileEntry.h"
#include "shell/CommandState.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class CommandStateTest : public WindowTest {};

TEST_F(CommandStateTest, EmptyListLeavesOnlyOpenAndOptionsEnabledOnTheMainBar) {
  Open();
  // Image preview would be enabled too, but its window isn't built yet.
  for (const std::string& key : shell::MainToolBarKeys()) {
    if (key.empty()) continue;
    const QString name = QString::fromStdString(key);
    const bool expected = name == "OpenFile" || name == "Options";
    EXPECT_EQ(MainTool(name)->isEnabled(), expected) << key;
  }
}

TEST_F(CommandStateTest, EmptyListShowsNoScriptAndZeroCounts) {
  Open();
  EXPECT_EQ(Label("lblSelectedScript"), LanguageText("Messages", "MsgStat05"));
  EXPECT_FALSE(Label("lblSelectedScript").isEmpty());
  EXPECT_EQ(Label("Status"), CountsText(0, 0, 0));
}

TEST_F(CommandStateTest, EmptyListDisablesUndoRejectTakeAndTheScopeList) {
  Open();
  EXPECT_FALSE(Menu("mnuUndo")->isEnabled());
  EXPECT_FALSE(Menu("mnuRejectChanges")->isEnabled());
  EXPECT_FALSE(Menu("mnuTakeChanges")->isEnabled());
  EXPECT_FALSE(window->findChild<QComboBox*>("lstApplyTo")->isEnabled());
}

TEST_F(CommandStateTest, AddingAFolderListsItsFilesAndCountsThem) {
  Open();
  files.WriteFile("photos/a.txt", "a");
  files.WriteFile("photos/b.txt", "b");
  files.WriteFile("photos/deeper/c.txt", "c");
  window->AddPaths({QString::fromStdString(files.Path() + "photos")});

  EXPECT_EQ(ShownRows(), 3);
  EXPECT_NE(PositionOf("a.txt"), 0);
  EXPECT_NE(PositionOf("c.txt"), 0);
  EXPECT_EQ(Label("Status"), CountsText(3, 2, 0));
  EXPECT_TRUE(MainTool("DelList")->isEnabled());
  EXPECT_FALSE(MainTool("TakeChanges")->isEnabled());
  EXPECT_TRUE(window->findChild<QComboBox*>("lstApplyTo")->isEnabled());
}

TEST_F(CommandStateTest, PendingChangeShowsTheRowDarkRed) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  SetNewName(PositionOf("a.txt"), "z.txt");
  window->RefreshPreview();

  EXPECT_EQ(Shown(PositionOf("a.txt"), core::kColNewName).toString(), "z.txt");
  EXPECT_EQ(Shown(PositionOf("a.txt"), core::kColOldName, Qt::ForegroundRole).value<QColor>(), QColor(128, 0, 0));
  EXPECT_FALSE(Shown(PositionOf("b.txt"), core::kColOldName, Qt::ForegroundRole).isValid());
  EXPECT_EQ(Label("Status"), CountsText(2, 1, 1));
}

TEST_F(CommandStateTest, PendingChangeEnablesTakeRejectAndUndo) {
  Open();
  AddFiles({"a.txt"});
  EXPECT_FALSE(MainTool("Undo")->isEnabled());
  SetNewName(1, "z.txt");
  window->RefreshPreview();

  EXPECT_TRUE(MainTool("TakeChanges")->isEnabled());
  EXPECT_TRUE(MainTool("RejectChanges")->isEnabled());
  EXPECT_TRUE(Menu("mnuTakeChanges")->isEnabled());
  EXPECT_TRUE(Menu("mnuRejectChanges")->isEnabled());
  EXPECT_TRUE(MainTool("Undo")->isEnabled());
  EXPECT_TRUE(Menu("mnuUndo")->isEnabled());
}

TEST_F(CommandStateTest, CancelWhileLoadingStopsBeforeTheNextPath) {
  Open();
  // The loader lets events through once per hundred files.
  for (int i = 0; i < 100; ++i) files.WriteFile("first/" + std::to_string(i) + ".txt", "x");
  files.WriteFile("second/late.txt", "x");
  bool cancelEnabled = false;
  bool menusEnabled = true;
  QTimer::singleShot(0, window.get(), [&] {
    cancelEnabled = window->ToolAction("btnBarLeft", "CancelAction")->isEnabled();
    menusEnabled = window->menuBar()->isEnabled();
    window->ToolAction("btnBarLeft", "CancelAction")->trigger();
  });

  window->AddPaths({QString::fromStdString(files.Path() + "first"), QString::fromStdString(files.Path() + "second")});

  EXPECT_TRUE(cancelEnabled);
  EXPECT_FALSE(menusEnabled);
  EXPECT_EQ(ShownRows(), 100);
  EXPECT_EQ(PositionOf("late.txt"), 0);
  EXPECT_FALSE(window->ToolAction("btnBarLeft", "CancelAction")->isEnabled());
  EXPECT_TRUE(window->menuBar()->isEnabled());
}

}  // namespace
}  // namespace nomra::ui::testing
