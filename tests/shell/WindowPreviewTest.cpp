#include <gtest/gtest.h>

#include "core/SortFileList.h"
#include "shell/WindowPreview.h"
#include "support/ListFixture.h"

namespace nomra::shell {
namespace {

class RefreshTest : public testing::ListTest {};

TEST_F(RefreshTest, EmptyListCountsNothingAndLeavesOnlyTheAlwaysCommands) {
  preview.Refresh();
  EXPECT_EQ(state.folderCount, 0);
  EXPECT_EQ(state.changedCount, 0);
  EXPECT_EQ(state.undoLevels, 0);
  for (const std::string& key : MainToolBarKeys()) {
    const bool expected = key == "OpenFile" || key == "Options" || key == "ImgPreview";
    if (key.empty()) continue;  // separators
    EXPECT_EQ(window.commands.IsEnabled(key), expected) << key;
  }
  for (const char* name : {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuTakeChanges", "mnuUndo", "mnuRejectChanges",
                           "StartRunScript", "StartRecordScript", "RunSelectedScript"}) {
    EXPECT_FALSE(window.commands.IsEnabled(name)) << name;
  }
  EXPECT_EQ(window.selectedScriptLabel, "No script");
  EXPECT_EQ(frontEnd.statusTexts.back(), "0 files in 0 folders, 0 changed");
}

TEST_F(RefreshTest, CountsRowsFoldersAndChanges) {
  AddFiles({"one/a", "one/b", "two/c", "three/d"});
  SetNewName(2, "renamed");
  preview.Refresh();
  EXPECT_EQ(state.folderCount, 3);
  EXPECT_EQ(state.changedCount, 1);
  EXPECT_EQ(frontEnd.statusTexts.back(), "4 files in 3 folders, 1 changed");
}

TEST_F(RefreshTest, ChangedRowsAreDarkRedOthersBlack) {
  AddFiles({"a", "b"});
  SetNewName(1, "c");
  preview.Refresh();
  EXPECT_EQ(state.list.Item(1).colour, core::RowColour::DarkRed);
  EXPECT_EQ(state.list.Item(2).colour, core::RowColour::Black);
  SetNewName(1, "a");
  preview.Refresh();
  EXPECT_EQ(state.list.Item(1).colour, core::RowColour::Black);
}

TEST_F(RefreshTest, PendingChangesEnableTakeAndReject) {
  AddFiles({"a"});
  EXPECT_FALSE(window.commands.IsEnabled("mnuTakeChanges"));
  SetNewName(1, "b");
  preview.Refresh();
  for (const char* name : {"mnuTakeChanges", "mnuRejectChanges", "TakeChanges", "RejectChanges"}) {
    EXPECT_TRUE(window.commands.IsEnabled(name)) << name;
  }
}

TEST_F(RefreshTest, NonEmptyListEnablesTheListCommands) {
  AddFiles({"a"});
  for (const char* name :
       {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuFindDuplications", "mnuSpecial", "mnuScript", "mnuRename",
        "StartRunScript", "StartRecordScript", "DelList", "Rename01", "Rename10", "Rename99"}) {
    EXPECT_TRUE(window.commands.IsEnabled(name)) << name;
  }
  EXPECT_FALSE(window.commands.IsEnabled("RunSelectedScript"));
  EXPECT_FALSE(window.commands.IsEnabled("Undo"));
  script.recording = 1;
  window.scriptMenuHasEntries = true;
  preview.Refresh();
  EXPECT_FALSE(window.commands.IsEnabled("StartRecordScript"));
  EXPECT_TRUE(window.commands.IsEnabled("RunSelectedScript"));
}

TEST_F(RefreshTest, ActionThatChangesNoNameAddsNoHistoryLevel) {
  AddFiles({"a", "b"});
  preview.Refresh();
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 0);
  EXPECT_FALSE(window.commands.IsEnabled("mnuUndo"));
}

TEST_F(RefreshTest, ChangeAddsOneHistoryLevelAndEnablesUndo) {
  AddFiles({"a", "b"});
  SetNewName(1, "x");
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 1);
  EXPECT_TRUE(window.commands.IsEnabled("mnuUndo"));
  EXPECT_TRUE(window.commands.IsEnabled("Undo"));
  EXPECT_EQ(state.list.Item(1)[core::kColHistory0], "x");
  EXPECT_EQ(state.list.Item(1)[core::kColHistoryFirst], "a");
  EXPECT_EQ(state.list.Item(2)[core::kColHistoryFirst], "b") << "every row's history moves";
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 1) << "a refresh without a new state adds nothing";
}

TEST_F(RefreshTest, SettingEveryNameBackAddsNoLevelAndDisablesTaking) {
  AddFiles({"a", "b"});
  SetNewName(1, "x");
  preview.Refresh();
  ASSERT_EQ(state.undoLevels, 1);
  SetNewName(1, "a");
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 1);
  EXPECT_EQ(state.list.Item(1)[core::kColHistory0], "x") << "deliberately, the history stays as it was";
  EXPECT_FALSE(window.commands.IsEnabled("mnuTakeChanges"));
}

TEST_F(RefreshTest, HistoryKeepsTenLevels) {
  AddFiles({"a"});
  for (int i = 1; i <= 12; ++i) {
    SetNewName(1, "n" + std::to_string(i));
    preview.Refresh();
  }
  EXPECT_EQ(state.undoLevels, 10);
  EXPECT_EQ(state.list.Item(1)[core::kColHistoryFirst], "n11");
  EXPECT_EQ(state.list.Item(1)[core::kColHistoryLast], "n2");
}

TEST_F(RefreshTest, UndoLevelsFollowRowOneAlone) {
  AddFiles({"a", "b"});
  state.list.Item(2)[core::kColHistoryFirst] = "b";
  state.list.Item(2)[core::kColHistoryFirst + 1] = "b";
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 0);
  state.list.Item(1)[core::kColHistoryFirst] = "a";
  preview.Refresh();
  EXPECT_EQ(state.undoLevels, 1);
}

TEST_F(RefreshTest, RowAddedLateKeepsTheUndoCountRight) {
  AddFiles({"zz/z"});
  SetNewName(1, "y");
  preview.Refresh();
  // The late row sorts first by folder: its filled history is what row 1 shows.
  std::string path = temp.WriteFile("a-first/late");
  core::AddFile(load, path);
  preview.Refresh();
  ASSERT_EQ(state.list.Item(1)[core::kColOldName], "late");
  EXPECT_EQ(state.undoLevels, 1);
}

TEST_F(RefreshTest, ListPositionColumnHoldsTwelveDigits) {
  AddFiles({"a", "b"});
  EXPECT_EQ(state.list.Item(2)[core::kColListPosition], "000000000002");
}

TEST_F(RefreshTest, DisplayTextCopiesTheNewNameOnlyInTheIconView) {
  AddFiles({"a"});
  SetNewName(1, "b");
  preview.Refresh();
  EXPECT_EQ(state.list.Item(1)[core::kColDisplay], "");
  state.iconView = true;
  preview.Refresh();
  EXPECT_EQ(state.list.Item(1)[core::kColDisplay], "b");
}

TEST_F(RefreshTest, RefreshKeepsTheUsersSortOrder) {
  AddFiles({"x/f10", "y/f2", "x/f1"});
  core::sortFileList(state.list, frontEnd, 3);
  ASSERT_EQ(Column(core::kColOldName), (std::vector<std::string>{"f1", "f2", "f10"}));
  preview.Refresh();
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"f1", "f2", "f10"}));
  EXPECT_EQ(state.list.sortKey, core::kColOldName);
}

TEST_F(RefreshTest, WithoutASortColumnRowsLieInFolderOrder) {
  temp.WriteFile("b/1");
  temp.WriteFile("a/2");
  for (const char* name : {"b/1", "a/2"}) {
    std::string path = temp.Path() + name;
    core::AddFile(load, path);
  }
  preview.Refresh();
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"2", "1"}));
}

TEST_F(RefreshTest, HandMadeOrderSurvivesARefresh) {
  AddFiles({"a", "b", "c"});
  state.list.MoveRow(3, 1);
  state.list.sortKey = core::kColListPosition;
  preview.Refresh();
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"c", "a", "b"}));
  preview.Refresh();
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"c", "a", "b"}));
}

}  // namespace
}  // namespace nomra::shell
