#include "core/RefreshPreview.h"

#include <gtest/gtest.h>

#include "core/SortFileList.h"
#include "support/ListFixture.h"

namespace nomra {
namespace {

class RefreshTest : public testing::ListTest {};

TEST_F(RefreshTest, EmptyListCountsNothingAndLeavesOnlyTheAlwaysCommands) {
  refreshPreview(model);
  EXPECT_EQ(model.folderCount, 0);
  EXPECT_EQ(model.changedCount, 0);
  EXPECT_EQ(model.undoLevels, 0);
  for (const std::string& key : MainToolBarKeys()) {
    const bool expected = key == "OpenFile" || key == "Options" || key == "ImgPreview";
    if (key.empty()) continue;  // separators
    EXPECT_EQ(model.commands.IsEnabled(key), expected) << key;
  }
  for (const char* name : {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuTakeChanges", "mnuUndo",
                           "mnuRejectChanges", "StartRunScript", "StartRecordScript", "RunSelectedScript"}) {
    EXPECT_FALSE(model.commands.IsEnabled(name)) << name;
  }
  EXPECT_EQ(model.selectedScriptLabel, "No script");
  EXPECT_EQ(frontEnd.statusTexts.back(), "0 files in 0 folders, 0 changed");
}

TEST_F(RefreshTest, CountsRowsFoldersAndChanges) {
  AddFiles({"one/a", "one/b", "two/c", "three/d"});
  SetNewName(2, "renamed");
  refreshPreview(model);
  EXPECT_EQ(model.folderCount, 3);
  EXPECT_EQ(model.changedCount, 1);
  EXPECT_EQ(frontEnd.statusTexts.back(), "4 files in 3 folders, 1 changed");
}

TEST_F(RefreshTest, ChangedRowsAreDarkRedOthersBlack) {
  AddFiles({"a", "b"});
  SetNewName(1, "c");
  refreshPreview(model);
  EXPECT_EQ(model.list.Item(1).colour, RowColour::DarkRed);
  EXPECT_EQ(model.list.Item(2).colour, RowColour::Black);
  SetNewName(1, "a");
  refreshPreview(model);
  EXPECT_EQ(model.list.Item(1).colour, RowColour::Black);
}

TEST_F(RefreshTest, PendingChangesEnableTakeAndReject) {
  AddFiles({"a"});
  EXPECT_FALSE(model.commands.IsEnabled("mnuTakeChanges"));
  SetNewName(1, "b");
  refreshPreview(model);
  for (const char* name : {"mnuTakeChanges", "mnuRejectChanges", "TakeChanges", "RejectChanges"}) {
    EXPECT_TRUE(model.commands.IsEnabled(name)) << name;
  }
}

TEST_F(RefreshTest, NonEmptyListEnablesTheListCommands) {
  AddFiles({"a"});
  for (const char* name : {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuFindDuplications", "mnuSpecial", "mnuScript",
                           "mnuRename", "StartRunScript", "StartRecordScript", "DelList", "Rename01", "Rename10",
                           "Rename99"}) {
    EXPECT_TRUE(model.commands.IsEnabled(name)) << name;
  }
  EXPECT_FALSE(model.commands.IsEnabled("RunSelectedScript"));
  EXPECT_FALSE(model.commands.IsEnabled("Undo"));
  model.script.recording = 1;
  model.scriptMenuHasEntries = true;
  refreshPreview(model);
  EXPECT_FALSE(model.commands.IsEnabled("StartRecordScript"));
  EXPECT_TRUE(model.commands.IsEnabled("RunSelectedScript"));
}

TEST_F(RefreshTest, ActionThatChangesNoNameAddsNoHistoryLevel) {
  AddFiles({"a", "b"});
  refreshPreview(model);
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 0);
  EXPECT_FALSE(model.commands.IsEnabled("mnuUndo"));
}

TEST_F(RefreshTest, ChangeAddsOneHistoryLevelAndEnablesUndo) {
  AddFiles({"a", "b"});
  SetNewName(1, "x");
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 1);
  EXPECT_TRUE(model.commands.IsEnabled("mnuUndo"));
  EXPECT_TRUE(model.commands.IsEnabled("Undo"));
  EXPECT_EQ(model.list.Item(1)[kColHistory0], "x");
  EXPECT_EQ(model.list.Item(1)[kColHistoryFirst], "a");
  EXPECT_EQ(model.list.Item(2)[kColHistoryFirst], "b") << "every row's history moves";
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 1) << "a refresh without a new state adds nothing";
}

TEST_F(RefreshTest, SettingEveryNameBackAddsNoLevelAndDisablesTaking) {
  AddFiles({"a", "b"});
  SetNewName(1, "x");
  refreshPreview(model);
  ASSERT_EQ(model.undoLevels, 1);
  SetNewName(1, "a");
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 1);
  EXPECT_EQ(model.list.Item(1)[kColHistory0], "x") << "deliberately, the history stays as it was";
  EXPECT_FALSE(model.commands.IsEnabled("mnuTakeChanges"));
}

TEST_F(RefreshTest, HistoryKeepsTenLevels) {
  AddFiles({"a"});
  for (int i = 1; i <= 12; ++i) {
    SetNewName(1, "n" + std::to_string(i));
    refreshPreview(model);
  }
  EXPECT_EQ(model.undoLevels, 10);
  EXPECT_EQ(model.list.Item(1)[kColHistoryFirst], "n11");
  EXPECT_EQ(model.list.Item(1)[kColHistoryLast], "n2");
}

TEST_F(RefreshTest, UndoLevelsFollowRowOneAlone) {
  AddFiles({"a", "b"});
  model.list.Item(2)[kColHistoryFirst] = "b";
  model.list.Item(2)[kColHistoryFirst + 1] = "b";
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 0);
  model.list.Item(1)[kColHistoryFirst] = "a";
  refreshPreview(model);
  EXPECT_EQ(model.undoLevels, 1);
}

TEST_F(RefreshTest, RowAddedLateKeepsTheUndoCountRight) {
  AddFiles({"zz/z"});
  SetNewName(1, "y");
  refreshPreview(model);
  // The late row sorts first by folder: its filled history is what row 1 shows.
  std::string path = temp.WriteFile("a-first/late");
  AddFile(model, path);
  refreshPreview(model);
  ASSERT_EQ(model.list.Item(1)[kColOldName], "late");
  EXPECT_EQ(model.undoLevels, 1);
}

TEST_F(RefreshTest, ListPositionColumnHoldsTwelveDigits) {
  AddFiles({"a", "b"});
  EXPECT_EQ(model.list.Item(2)[kColListPosition], "000000000002");
}

TEST_F(RefreshTest, DisplayTextCopiesTheNewNameOnlyInTheIconView) {
  AddFiles({"a"});
  SetNewName(1, "b");
  refreshPreview(model);
  EXPECT_EQ(model.list.Item(1)[kColDisplay], "");
  model.iconView = true;
  refreshPreview(model);
  EXPECT_EQ(model.list.Item(1)[kColDisplay], "b");
}

TEST_F(RefreshTest, RefreshKeepsTheUsersSortOrder) {
  AddFiles({"x/f10", "y/f2", "x/f1"});
  sortFileList(model, 3);
  ASSERT_EQ(Column(kColOldName), (std::vector<std::string>{"f1", "f2", "f10"}));
  refreshPreview(model);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"f1", "f2", "f10"}));
  EXPECT_EQ(model.list.sortKey, kColOldName);
}

TEST_F(RefreshTest, WithoutASortColumnRowsLieInFolderOrder) {
  temp.WriteFile("b/1");
  temp.WriteFile("a/2");
  for (const char* name : {"b/1", "a/2"}) {
    std::string path = temp.Path() + name;
    AddFile(model, path);
  }
  refreshPreview(model);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"2", "1"}));
}

TEST_F(RefreshTest, HandMadeOrderSurvivesARefresh) {
  AddFiles({"a", "b", "c"});
  model.list.MoveRow(3, 1);
  model.list.sortKey = kColListPosition;
  refreshPreview(model);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"c", "a", "b"}));
  refreshPreview(model);
  EXPECT_EQ(Column(kColOldName), (std::vector<std::string>{"c", "a", "b"}));
}

}  // namespace
}  // namespace nomra
