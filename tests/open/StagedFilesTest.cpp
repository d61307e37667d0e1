#include <gtest/gtest.h>

#include <algorithm>

#include "OpenFixture.h"
#include "base/Fault.h"
#include "open/StagedFiles.h"
#include "support/RealFiles.h"

namespace nomra::open {
namespace {

using Paths = std::vector<std::string>;

class StagedFilesTest : public testing::OpenTest {
 protected:
  FolderSelection ShowFolder(const std::string& relative) {
    FolderSelection selection;
    selection.folder = temp.Path() + relative;  // as the path field shows it, without the separator
    return selection;
  }

  Paths Stage(const FolderSelection& selection) { return StageFiles(selection, fileSystem); }

  static std::set<std::string> AsSet(const Paths& paths) { return {paths.begin(), paths.end()}; }

  static std::size_t PositionOf(const Paths& paths, const std::string& path) {
    return static_cast<std::size_t>(std::find(paths.begin(), paths.end(), path) - paths.begin());
  }
};

TEST_F(StagedFilesTest, SelectedFilesAreStagedInTheShownFolder) {
  FolderSelection selection = ShowFolder("music");
  selection.selectedFiles = {"b.mp3", "a.mp3"};
  selection.listedFiles = {"a.mp3", "b.mp3", "c.mp3"};
  EXPECT_EQ(Stage(selection), (Paths{temp.Path() + "music/b.mp3", temp.Path() + "music/a.mp3"}));
}

TEST_F(StagedFilesTest, AllFilesTakesEveryListedFile) {
  FolderSelection selection = ShowFolder("music");
  selection.selectedFiles = {"b.mp3"};
  selection.listedFiles = {"a.mp3", "b.mp3", "c.mp3"};
  selection.allFiles = true;
  EXPECT_EQ(Stage(selection),
            (Paths{temp.Path() + "music/a.mp3", temp.Path() + "music/b.mp3", temp.Path() + "music/c.mp3"}));
}

TEST_F(StagedFilesTest, NothingIsWalkedWithoutSubfoldersOrASelectedFolder) {
  temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/A/b.mp3");
  FolderSelection selection = ShowFolder("music");
  EXPECT_TRUE(Stage(selection).empty());
}

TEST_F(StagedFilesTest, SelectedFolderIsTakenWithItsWholeTree) {
  temp.WriteFile("music/top.mp3");
  const std::string a = temp.WriteFile("music/A/a.mp3");
  const std::string deep = temp.WriteFile("music/A/AA/deep.mp3");
  temp.WriteFile("music/B/b.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.selectedFolders = {temp.Path() + "music/A/"};
  EXPECT_EQ(Stage(selection), (Paths{a, deep}));
}

TEST_F(StagedFilesTest, EachSelectedFolderIsStagedOnce) {
  const std::string a = temp.WriteFile("music/A/a.mp3");
  const std::string b = temp.WriteFile("music/B/b.mp3");
  const std::string deep = temp.WriteFile("music/B/BB/deep.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.selectedFolders = {temp.Path() + "music/A", temp.Path() + "music/B"};
  selection.subFolders = true;
  EXPECT_EQ(Stage(selection), (Paths{a, b, deep}));
}

TEST_F(StagedFilesTest, SubfoldersAreWalkedFromTheShownFolderWithoutItsOtherFiles) {
  temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/b.mp3");
  const std::string sub = temp.WriteFile("music/A/sub.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.selectedFiles = {"a.mp3"};
  selection.listedFiles = {"a.mp3", "b.mp3"};
  selection.subFolders = true;
  EXPECT_EQ(Stage(selection), (Paths{temp.Path() + "music/a.mp3", sub}));
}

TEST_F(StagedFilesTest, WalkIsBreadthFirst) {
  const std::string a = temp.WriteFile("music/A/a.mp3");
  const std::string deepA = temp.WriteFile("music/A/AA/deep.mp3");
  const std::string b = temp.WriteFile("music/B/b.mp3");
  const std::string deepB = temp.WriteFile("music/B/BB/deep.mp3");
  const std::string deepest = temp.WriteFile("music/B/BB/BBB/deepest.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  const Paths staged = Stage(selection);
  ASSERT_EQ(AsSet(staged), (std::set<std::string>{a, deepA, b, deepB, deepest}));
  for (const std::string& second : {deepA, deepB}) {
    EXPECT_LT(PositionOf(staged, a), PositionOf(staged, second));
    EXPECT_LT(PositionOf(staged, b), PositionOf(staged, second));
    EXPECT_LT(PositionOf(staged, second), PositionOf(staged, deepest));
  }
}

TEST_F(StagedFilesTest, WalkedFilesPassAnyOfThePatterns) {
  const std::string mp3 = temp.WriteFile("music/A/a.MP3");
  const std::string ogg = temp.WriteFile("music/A/b.ogg");
  temp.WriteFile("music/A/c.wav");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  selection.pattern = "*.mp3;*.ogg";
  EXPECT_EQ(AsSet(Stage(selection)), (std::set<std::string>{mp3, ogg}));
}

TEST_F(StagedFilesTest, AllFilesPatternWalksNamesWithoutADot) {
  const std::string readme = temp.WriteFile("music/A/README");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  EXPECT_EQ(Stage(selection), (Paths{readme}));
}

TEST_F(StagedFilesTest, WalkedHiddenFilesAreTakenOnlyWhenShown) {
  const std::string shown = temp.WriteFile("music/A/a.mp3");
  const std::string hidden = temp.WriteFile("music/A/.b.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  EXPECT_EQ(Stage(selection), (Paths{shown}));
  selection.showHiddenFiles = true;
  EXPECT_EQ(AsSet(Stage(selection)), (std::set<std::string>{shown, hidden}));
}

TEST_F(StagedFilesTest, UnreadableFolderIsPassedOver) {
  temp.WriteFile("music/A/a.mp3");
  const std::string b = temp.WriteFile("music/B/b.mp3");
  fileSystem.unreadable.insert(temp.Path() + "music/A/");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  EXPECT_EQ(Stage(selection), (Paths{b}));
}

TEST_F(StagedFilesTest, StagingReadsTheRealDisk) {
  const std::string a = temp.WriteFile("music/A/a.mp3");
  FolderSelection selection = ShowFolder("music");
  selection.subFolders = true;
  EXPECT_EQ(StageFiles(selection, nomra::testing::RealFiles()), (Paths{a}));
}

TEST_F(StagedFilesTest, LoadAddsEveryStagedPathRefreshesAndEmptiesTheList) {
  const std::string a = temp.WriteFile("a.mp3");
  const std::string b = temp.WriteFile("b.mp3");
  Paths staged{a, b, a};
  WatchPointerAtNextFile();
  EXPECT_EQ(LoadStagedFiles(load, preview, staged), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_TRUE(Refreshed());
  EXPECT_TRUE(staged.empty());
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(StagedFilesTest, LoadOfNothingStillRefreshes) {
  Paths staged;
  EXPECT_EQ(LoadStagedFiles(load, preview, staged), LoadOutcome::Finished);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(StagedFilesTest, CancelClearsTheFlagStopsAndEmptiesTheList) {
  const std::string a = temp.WriteFile("a.mp3");
  Paths staged{a, temp.WriteFile("b.mp3"), temp.WriteFile("c.mp3")};
  CancelAtFile(1);
  EXPECT_EQ(LoadStagedFiles(load, preview, staged), LoadOutcome::Cancelled);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_TRUE(staged.empty());
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(StagedFilesTest, StagedPathThatNamesNothingEndsTheLoadWithAFault) {
  options.checkExistence = false;
  const std::string a = temp.WriteFile("a.mp3");
  Paths staged{a, temp.Path() + "gone.mp3", temp.WriteFile("c.mp3")};
  EXPECT_THROW(LoadStagedFiles(load, preview, staged), base::RuntimeFault);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_TRUE(Refreshed());
  EXPECT_TRUE(staged.empty());
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(StagedFilesTest, StagedPathThatNamesNothingIsSkippedWhenExistenceIsChecked) {
  options.checkExistence = true;
  const std::string c = temp.WriteFile("c.mp3");
  Paths staged{temp.Path() + "gone.mp3", c};
  EXPECT_EQ(LoadStagedFiles(load, preview, staged), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{c}));
}

}  // namespace
}  // namespace nomra::open
