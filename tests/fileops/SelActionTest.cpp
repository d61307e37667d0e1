// frmSelAction without a window: copying or moving the list's files to a
// folder, and the copy that goes with taking changes.
#include <stdexcept>

#include "commit/DiskCommitter.h"
#include "core/AddFile.h"
#include "fileops/FrmSelAction.h"
#include "fileops/ListOperationsFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::fileops::testing {
namespace {

using nomra::testing::Exists;

class SelActionTest : public ListOperationsTest {
 protected:
  SelActionTest() {
    rowCommitter = &committer;
    script.settingsPath = settingsFolder.Path() + "settings.nrp";
    options.dataFolder = settingsFolder.Path();
    target = temp.MakeFolder("target");
  }

  // A file holding its own relative path, added as a row.
  void Add(const std::string& relative) {
    std::string path = temp.WriteFile(relative, relative);
    core::AddFile(load, path);
  }
  FrmSelAction Opened(const std::string& tag) {
    FrmSelAction dialog(tag);
    dialog.Activate(Actions());
    dialog.cmdSelPath(target, fileSystem);
    return dialog;
  }
  void Choose(FrmSelAction& dialog, const char* option) { dialog.Model().SetOption(option, true); }

  TempFolder settingsFolder;
  commit::DiskCommitter committer{Commit()};
  std::string target;
};

TEST_F(SelActionTest, CopyOfTheNewNamesIsChosenWhenNothingIsStored) {
  FrmSelAction dialog(kSelActionTag);
  dialog.Activate(Actions());

  EXPECT_TRUE(dialog.Model().IsSelected("optRenCopy"));
  EXPECT_FALSE(dialog.Model().IsSelected("optRenOriginal"));
  EXPECT_FALSE(dialog.Model().IsSelected("optRenBoth"));
}

TEST_F(SelActionTest, InputsAreListedUnderTheirControlNames) {
  std::vector<std::string> keys;
  FrmSelAction dialog(kCopyFilesTag);
  for (const auto& input : dialog.Model().Inputs()) keys.push_back(input.Key());

  EXPECT_EQ(keys, (std::vector<std::string>{"optRenOriginal", "optRenCopy", "optRenBoth", "txtTargetPath", "cmdSelPath",
                                            "chkUpdateList", "frameCopy", "lblTargetDir", "cmdOK", "cmdCancel"}));
}

TEST_F(SelActionTest, TakeChangesModeShowsTheFrameOfNames) {
  FrmSelAction dialog(kSelActionTag);
  EXPECT_TRUE(dialog.ShowsFrameCopy());
  EXPECT_FALSE(dialog.ShowsUpdateList());
}

TEST_F(SelActionTest, CopyModeShowsTheUpdateCheckBoxToChoose) {
  FrmSelAction dialog(kCopyFilesTag);
  EXPECT_FALSE(dialog.ShowsFrameCopy());
  EXPECT_TRUE(dialog.ShowsUpdateList());
  EXPECT_TRUE(dialog.UpdateListEnabled());
}

TEST_F(SelActionTest, MoveModeKeepsTheUpdateCheckBoxCheckedAndDisabled) {
  Ini(script.settingsPath).Write(kMoveFilesTag, "chkUpdateList", "0");
  FrmSelAction dialog(kMoveFilesTag);

  dialog.Activate(Actions());

  EXPECT_TRUE(dialog.ShowsUpdateList());
  EXPECT_FALSE(dialog.UpdateListEnabled());
  EXPECT_EQ(dialog.Model().Number("chkUpdateList"), 1);
}

TEST_F(SelActionTest, TagOfNoModeIsRefused) { EXPECT_THROW(FrmSelAction("frmOther"), std::invalid_argument); }

TEST_F(SelActionTest, OkIsEnabledOnlyForAnExistingFolder) {
  FrmSelAction dialog(kCopyFilesTag);
  dialog.Activate(Actions());
  EXPECT_FALSE(dialog.OkEnabled());

  dialog.Model().SetText("txtTargetPath", temp.WriteFile("plain.txt"));
  dialog.txtTargetPath_Change(fileSystem);
  EXPECT_FALSE(dialog.OkEnabled());

  dialog.Model().SetText("txtTargetPath", temp.Path() + "missing");
  dialog.txtTargetPath_Change(fileSystem);
  EXPECT_FALSE(dialog.OkEnabled());

  dialog.Model().SetText("txtTargetPath", target);
  dialog.txtTargetPath_Change(fileSystem);
  EXPECT_TRUE(dialog.OkEnabled());
}

TEST_F(SelActionTest, CancelledFolderBrowserChangesNothing) {
  FrmSelAction dialog = Opened(kCopyFilesTag);

  dialog.cmdSelPath("", fileSystem);

  EXPECT_EQ(dialog.Model().Text("txtTargetPath"), target);
  EXPECT_TRUE(dialog.OkEnabled());
}

TEST_F(SelActionTest, RemembersItsInputsUnderItsTag) {
  Add("a.txt");
  FrmSelAction dialog = Opened(kCopyFilesTag);
  dialog.Model().SetNumber("chkUpdateList", 1);
  ASSERT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  FrmSelAction again(kCopyFilesTag);
  again.Activate(Actions());
  FrmSelAction otherMode(kMoveFilesTag);
  otherMode.Activate(Actions());

  EXPECT_EQ(Ini(script.settingsPath).ReadString(kCopyFilesTag, "txtTargetPath"), target);
  EXPECT_EQ(again.Model().Text("txtTargetPath"), target);
  EXPECT_EQ(again.Model().Number("chkUpdateList"), 1);
  EXPECT_TRUE(again.OkEnabled());
  EXPECT_EQ(otherMode.Model().Text("txtTargetPath"), "");
}

TEST_F(SelActionTest, CopyTakesTheSelectedFilesAndLeavesTheListWithoutUpdate) {
  Add("a.txt");
  Add("b.txt");
  state.list.Item(2).selected = true;
  const std::vector<std::string> before = Keys();
  FrmSelAction dialog = Opened(kCopyFilesTag);

  EXPECT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(ReadWholeFile(target + "b.txt"), "b.txt");
  EXPECT_FALSE(Exists(target + "a.txt"));
  EXPECT_TRUE(Exists(temp.Path() + "b.txt"));
  EXPECT_EQ(Keys(), before);
}

TEST_F(SelActionTest, CopyWithUpdateShowsTheCopiesInTheList) {
  Add("a.txt");
  Add("b.txt");
  state.list.Item(1).selected = true;
  FrmSelAction dialog = Opened(kCopyFilesTag);
  dialog.Model().SetNumber("chkUpdateList", 1);

  dialog.cmdOK(Actions(), rowCommitter, services);

  // The refresh puts the rows in folder order.
  EXPECT_EQ(Keys(), (std::vector<std::string>{temp.Path() + "b.txt", target + "a.txt"}));
  EXPECT_EQ(state.list.Item(2)[core::kColPath], target);
}

TEST_F(SelActionTest, MovedFilesAreFollowedByTheirRows) {
  Add("a.txt");
  Add("sub/b.txt");
  state.list.ForEach([](core::FileEntry& row) { row.selected = true; });
  FrmSelAction dialog = Opened(kMoveFilesTag);

  EXPECT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(ReadWholeFile(target + "b.txt"), "sub/b.txt");
  EXPECT_FALSE(Exists(temp.Path() + "a.txt"));
  EXPECT_EQ(Keys(), (std::vector<std::string>{target + "a.txt", target + "b.txt"}));
}

TEST_F(SelActionTest, MovedFileKeptBesideAnotherIsFollowedUnderItsNewName) {
  Add("a.txt");
  temp.WriteFile("target/a.txt", "other");
  state.list.Item(1).selected = true;
  frontEnd.answers = {core::Answer::No, core::Answer::Yes};
  FrmSelAction dialog = Opened(kMoveFilesTag);

  dialog.cmdOK(Actions(), rowCommitter, services);

  EXPECT_EQ(Keys(), std::vector<std::string>{target + "a (2).txt"});
  EXPECT_EQ(state.list.Item(1)[core::kColNewName], "a (2).txt");
  EXPECT_EQ(ReadWholeFile(target + "a.txt"), "other");
}

TEST_F(SelActionTest, SkippedMoveLeavesTheRowWithItsFile) {
  Add("a.txt");
  temp.WriteFile("target/a.txt", "other");
  state.list.Item(1).selected = true;
  frontEnd.answers = {core::Answer::No, core::Answer::No};
  FrmSelAction dialog = Opened(kMoveFilesTag);

  dialog.cmdOK(Actions(), rowCommitter, services);

  EXPECT_EQ(Keys(), std::vector<std::string>{temp.Path() + "a.txt"});
}

TEST_F(SelActionTest, SelectedRowWithTheNameOfALaterRowStopsWithTheDialogOpen) {
  Add("one/a.txt");
  Add("two/a.txt");
  state.list.Item(1).selected = true;
  FrmSelAction dialog = Opened(kCopyFilesTag);

  EXPECT_FALSE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{"MsgText26"});
  EXPECT_EQ(frontEnd.asked[0].captionKey, "msgCapAttention");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::OkStop);
  EXPECT_FALSE(Exists(target + "a.txt"));
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(SelActionTest, SelectedRowIsComparedOnlyWithTheRowsAfterIt) {
  Add("one/a.txt");
  Add("two/a.txt");
  state.list.Item(2).selected = true;
  FrmSelAction dialog = Opened(kCopyFilesTag);

  EXPECT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(ReadWholeFile(target + "a.txt"), "two/a.txt");
}

class TakeChangesCopyTest : public SelActionTest {
 protected:
  // a.txt and b.txt with new names A.txt and B.txt.
  void AddPending() {
    Add("a.txt");
    Add("b.txt");
    SetNewName(1, "A.txt");
    SetNewName(2, "B.txt");
    preview.Refresh();
  }
};

TEST_F(TakeChangesCopyTest, CopiesGetTheNewNamesAndTheListShowsThemUnchanged) {
  AddPending();
  FrmSelAction dialog = Opened(kSelActionTag);

  EXPECT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(NamesIn(temp.Path()), (std::vector<std::string>{"a.txt", "b.txt", "target"}));
  EXPECT_EQ(ReadWholeFile(target + "A.txt"), "a.txt");
  EXPECT_EQ(ReadWholeFile(target + "B.txt"), "b.txt");
  EXPECT_EQ(Keys(), (std::vector<std::string>{target + "A.txt", target + "B.txt"}));
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"A.txt", "B.txt"}));
  EXPECT_EQ(Column(core::kColNewName), (std::vector<std::string>{"A.txt", "B.txt"}));
  EXPECT_EQ(state.changedCount, 0);
  EXPECT_EQ(state.list.Item(1)[core::kColHistory0], "");
  EXPECT_EQ(state.undoLevels, 0);
}

TEST_F(TakeChangesCopyTest, OriginalsAreRenamedAndTheCopiesKeepTheOldNames) {
  AddPending();
  FrmSelAction dialog = Opened(kSelActionTag);
  Choose(dialog, "optRenOriginal");

  dialog.cmdOK(Actions(), rowCommitter, services);

  EXPECT_EQ(NamesIn(temp.Path()), (std::vector<std::string>{"A.txt", "B.txt", "target"}));
  EXPECT_EQ(NamesIn(target), (std::vector<std::string>{"a.txt", "b.txt"}));
  EXPECT_EQ(Keys(), (std::vector<std::string>{temp.Path() + "A.txt", temp.Path() + "B.txt"}));
  EXPECT_EQ(state.changedCount, 0);
}

TEST_F(TakeChangesCopyTest, BothGetTheNewNamesAndTheListShowsTheCopies) {
  AddPending();
  FrmSelAction dialog = Opened(kSelActionTag);
  Choose(dialog, "optRenBoth");

  dialog.cmdOK(Actions(), rowCommitter, services);

  EXPECT_EQ(NamesIn(temp.Path()), (std::vector<std::string>{"A.txt", "B.txt", "target"}));
  EXPECT_EQ(NamesIn(target), (std::vector<std::string>{"A.txt", "B.txt"}));
  EXPECT_EQ(Keys(), (std::vector<std::string>{target + "A.txt", target + "B.txt"}));
}

TEST_F(TakeChangesCopyTest, OriginalThatCouldNotBeRenamedLosesItsPendingName) {
  AddPending();
  temp.WriteFile("B.txt", "in the way");
  FrmSelAction dialog = Opened(kSelActionTag);
  Choose(dialog, "optRenOriginal");

  dialog.cmdOK(Actions(), rowCommitter, services);

  EXPECT_EQ(ReadWholeFile(temp.Path() + "b.txt"), "b.txt");
  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"A.txt", "b.txt"}));
  EXPECT_EQ(Column(core::kColNewName), (std::vector<std::string>{"A.txt", "b.txt"}));
  ASSERT_EQ(committer.LastResult().notRenamed.size(), 1u);
  EXPECT_EQ(committer.LastResult().notRenamed[0].textKey, "MsgText05");
}

TEST_F(TakeChangesCopyTest, StoppedCopyIsTakenLikeAFinishedOne) {
  AddPending();
  progress.stopAtFile = 1;
  FrmSelAction dialog = Opened(kSelActionTag);
  Choose(dialog, "optRenBoth");

  EXPECT_TRUE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_TRUE(NamesIn(target).empty());
  EXPECT_EQ(NamesIn(temp.Path()), (std::vector<std::string>{"A.txt", "B.txt", "target"}));
  EXPECT_EQ(Keys(), (std::vector<std::string>{target + "A.txt", target + "B.txt"}));
}

TEST_F(TakeChangesCopyTest, EqualNewNamesStopBeforeAnyCopy) {
  AddPending();
  SetNewName(2, "A.txt");
  FrmSelAction dialog = Opened(kSelActionTag);

  EXPECT_FALSE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{"MsgText26"});
  EXPECT_TRUE(NamesIn(target).empty());
}

TEST_F(TakeChangesCopyTest, WithOriginalsRenamedTheOldNamesAreCompared) {
  Add("one/a.txt");
  Add("two/a.txt");
  SetNewName(1, "x.txt");
  SetNewName(2, "y.txt");
  FrmSelAction dialog = Opened(kSelActionTag);
  Choose(dialog, "optRenOriginal");

  EXPECT_FALSE(dialog.cmdOK(Actions(), rowCommitter, services));

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{"MsgText26"});
}

}  // namespace
}  // namespace nomra::fileops::testing
