#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "OpenFixture.h"
#include "base/Fault.h"
#include "core/AddFile.h"
#include "open/OpenCommand.h"
#include "support/RealFiles.h"
#include "support/ScopedEnvironment.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

class OpenCommandTest : public testing::OpenTest {
 protected:
  OpenCommandTest() {
    temp.WriteFile("settings.nrp", "[Filter]\r\nf1=Music|*.mp3\r\nf2=Sound|*.mp3;*.ogg\r\nf3=Pictures|*.jpg\r\n");
    filters = BuildFilterList(Ini(temp.Path() + "settings.nrp"), "All files");
  }

  LoadOutcome Run(const OpenChoice& choice, bool showHiddenFiles = false) {
    return RunOpenChoice(load, preview, choice, filters, Ini(settingsFile), showHiddenFiles);
  }

  // Every file of the folder, all of them through row 2 ("*.mp3").
  OpenChoice AllFilesOf(const std::string& folder, int filterIndex = 2) {
    OpenChoice choice;
    choice.paths = {folder};
    choice.allFiles = true;
    choice.filterIndex = filterIndex;
    return choice;
  }

  // The position of a file in the order the files reached the list.
  std::size_t AddedAt(const std::string& path) {
    const auto& asked = fileSystem.filesAsked;
    return static_cast<std::size_t>(std::find(asked.begin(), asked.end(), path) - asked.begin());
  }

  std::vector<FilterRow> filters;
};

TEST_F(OpenCommandTest, SingleChosenFileIsAddedAndRemembered) {
  const std::string a = temp.WriteFile("music/a.mp3");
  OpenChoice choice;
  choice.paths = {a};
  choice.filterIndex = 3;
  WatchPointerAtNextFile();
  EXPECT_EQ(Run(choice), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
  EXPECT_EQ(Setting("lastfilter"), "3");
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(OpenCommandTest, SeveralChosenFilesAreAddedInOrder) {
  const std::string b = temp.WriteFile("music/b.mp3");
  const std::string a = temp.WriteFile("music/a.mp3");
  OpenChoice choice;
  choice.paths = {b, a};
  Run(choice);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_LT(AddedAt(b), AddedAt(a));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
}

TEST_F(OpenCommandTest, ChosenFolderIsAddedWhole) {
  const std::string hidden = temp.WriteFile("music/.hidden.mp3");
  const std::string deep = temp.WriteFile("music/sub/deep.txt");
  OpenChoice choice;
  choice.paths = {temp.Path() + "music"};
  Run(choice);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{hidden, deep}));
}

TEST_F(OpenCommandTest, CancelAfterAChosenFileStopsWithoutRememberingTheFolder) {
  const std::string a = temp.WriteFile("a.mp3");
  temp.WriteFile("b.mp3");
  temp.WriteFile("c.mp3");
  OpenChoice choice;
  choice.paths = {a, temp.Path() + "b.mp3", temp.Path() + "c.mp3"};
  CancelAtFile(1);
  EXPECT_EQ(Run(choice), LoadOutcome::Cancelled);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
  EXPECT_EQ(Setting("lastfilter"), "");
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(OpenCommandTest, ChosenPathThatNamesNothingEndsTheCommandWithAFault) {
  options.checkExistence = false;
  const std::string a = temp.WriteFile("a.mp3");
  OpenChoice choice;
  choice.paths = {a, temp.Path() + "gone.mp3", temp.WriteFile("c.mp3")};
  EXPECT_THROW(Run(choice), base::RuntimeFault);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(OpenCommandTest, NoChosenPathChangesNothing) {
  EXPECT_EQ(Run(OpenChoice{}), LoadOutcome::Finished);
  EXPECT_FALSE(Refreshed());
  EXPECT_FALSE(testing::Exists(settingsFile));
}

TEST_F(OpenCommandTest, AllFilesTakesTheFilesThatPassTheFilterRow) {
  const std::string a = temp.WriteFile("music/a.mp3");
  const std::string b = temp.WriteFile("music/B.MP3");
  temp.WriteFile("music/c.ogg");
  temp.WriteFile("music/sub/d.mp3");
  Run(AllFilesOf(temp.Path() + "music"));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_TRUE(Refreshed());
}

TEST_F(OpenCommandTest, AllFilesWithSeveralPatternsTakesNothing) {
  temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/b.ogg");
  Run(AllFilesOf(temp.Path() + "music", 3));
  EXPECT_EQ(state.list.Count(), 0);
}

TEST_F(OpenCommandTest, AllFilesThroughTheFirstRowLeavesNamesWithoutADot) {
  const std::string a = temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/README");
  Run(AllFilesOf(temp.Path() + "music", 1));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
}

TEST_F(OpenCommandTest, FilterIndexOutsideTheListMeansTheFirstRow) {
  const std::string a = temp.WriteFile("music/a.ogg");
  Run(AllFilesOf(temp.Path() + "music", 9));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
}

TEST_F(OpenCommandTest, ChosenFileStandsForItsFolderWithAllFiles) {
  const std::string a = temp.WriteFile("music/a.mp3");
  const std::string b = temp.WriteFile("music/b.mp3");
  Run(AllFilesOf(a));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
}

TEST_F(OpenCommandTest, AllFilesLeavesHiddenFilesOutUnlessTheyAreShown) {
  const std::string shown = temp.WriteFile("music/a.mp3");
  const std::string hidden = temp.WriteFile("music/.b.mp3");
  Run(AllFilesOf(temp.Path() + "music"));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{shown}));

  Run(AllFilesOf(temp.Path() + "music"), true);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{shown, hidden}));
}

TEST_F(OpenCommandTest, DroppedFolderTakesTheHiddenFilesTheDialogLeavesOut) {
  const std::string shown = temp.WriteFile("music/a.mp3");
  const std::string hidden = temp.WriteFile("music/.b.mp3");
  Run(AllFilesOf(temp.Path() + "music"));
  EXPECT_FALSE(RowKeys().contains(hidden));

  std::string dropped = temp.Path() + "music";
  core::AddFile(load, dropped);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{shown, hidden}));
}

TEST_F(OpenCommandTest, SubFoldersAreTakenBreadthFirst) {
  const std::string top = temp.WriteFile("music/top.mp3");
  const std::string a = temp.WriteFile("music/A/a.mp3");
  const std::string deepA = temp.WriteFile("music/A/AA/deep.mp3");
  const std::string b = temp.WriteFile("music/B/b.mp3");
  const std::string deepB = temp.WriteFile("music/B/BB/deep.mp3");
  const std::string deepest = temp.WriteFile("music/B/BB/BBB/deepest.mp3");
  temp.WriteFile("music/B/skip.ogg");
  OpenChoice choice = AllFilesOf(temp.Path() + "music");
  choice.subFolders = true;
  Run(choice);

  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, a, deepA, b, deepB, deepest}));
  for (const std::string& first : {a, b}) EXPECT_LT(AddedAt(top), AddedAt(first));
  for (const std::string& second : {deepA, deepB}) {
    EXPECT_LT(AddedAt(a), AddedAt(second));
    EXPECT_LT(AddedAt(b), AddedAt(second));
    EXPECT_LT(AddedAt(second), AddedAt(deepest));
  }
}

TEST_F(OpenCommandTest, SubFoldersAreLeftWithoutTheirCheck) {
  const std::string top = temp.WriteFile("music/top.mp3");
  temp.WriteFile("music/A/a.mp3");
  Run(AllFilesOf(temp.Path() + "music"));
  EXPECT_EQ(RowKeys(), (std::set<std::string>{top}));
}

TEST_F(OpenCommandTest, UnreadableFolderIsPassedOverAndTheWalkGoesOn) {
  temp.WriteFile("music/A/a.mp3");
  temp.WriteFile("music/A/AA/deep.mp3");
  const std::string b = temp.WriteFile("music/B/b.mp3");
  const std::string deepB = temp.WriteFile("music/B/BB/deep.mp3");
  fileSystem.unreadable.insert(temp.Path() + "music/A/");
  OpenChoice choice = AllFilesOf(temp.Path() + "music");
  choice.subFolders = true;
  EXPECT_EQ(Run(choice), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{b, deepB}));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
}

TEST_F(OpenCommandTest, CancelDuringTheFolderWalkStopsWithoutRememberingTheFolder) {
  for (const char* name : {"music/a.mp3", "music/b.mp3", "music/A/c.mp3", "music/A/d.mp3"}) temp.WriteFile(name);
  OpenChoice choice = AllFilesOf(temp.Path() + "music");
  choice.subFolders = true;
  CancelAtFile(2);
  EXPECT_EQ(Run(choice), LoadOutcome::Cancelled);
  EXPECT_EQ(state.list.Count(), 2);
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
  EXPECT_EQ(Setting("lastfilter"), "");
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(OpenCommandTest, CancelWhileTheLastFileIsAddedIsNotLeftStanding) {
  temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/b.mp3");
  CancelAtFile(2);
  EXPECT_EQ(Run(AllFilesOf(temp.Path() + "music")), LoadOutcome::Cancelled);
  EXPECT_EQ(state.list.Count(), 2);
  EXPECT_FALSE(load.stopAsked);
  EXPECT_EQ(Setting("lastpath"), "");
}

TEST_F(OpenCommandTest, AllFilesRemembersTheFolderAndTheFilterRow) {
  temp.WriteFile("music/a.mp3");
  WatchPointerAtNextFile();
  Run(AllFilesOf(temp.Path() + "music", 2));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
  EXPECT_EQ(Setting("lastfilter"), "2");
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(OpenCommandTest, PlaylistsModeLoadsEachPlaylist) {
  const std::string a = temp.WriteFile("music/a.mp3");
  const std::string b = temp.WriteFile("music/b.mp3");
  OpenChoice choice;
  choice.mode = OpenMode::Playlists;
  choice.paths = {temp.WriteFile("lists/one.m3u", "#EXTM3U\n" + a + "\n"),
                  temp.WriteFile("lists/two.pls", "[playlist]\nFile1=../music/b.mp3\n")};
  choice.filterIndex = 2;
  choice.allFiles = true;  // has no say over playlists
  EXPECT_EQ(Run(choice), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "lists/");
  EXPECT_EQ(Setting("lastfilter"), "2");
}

TEST_F(OpenCommandTest, CancelInAPlaylistSkipsTheLaterPlaylistsAndClearsTheFlag) {
  const std::string a = temp.WriteFile("music/a.mp3");
  temp.WriteFile("music/b.mp3");
  temp.WriteFile("music/c.mp3");
  OpenChoice choice;
  choice.mode = OpenMode::Playlists;
  choice.paths = {temp.WriteFile("lists/one.m3u", a + "\n../music/b.mp3\n"),
                  temp.WriteFile("lists/two.m3u", "../music/c.mp3\n")};
  CancelAtFile(1);
  EXPECT_EQ(Run(choice), LoadOutcome::Cancelled);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
}

TEST_F(OpenCommandTest, InitialFolderIsTheRememberedOne) {
  const std::string music = temp.MakeFolder("music");
  Ini(settingsFile).Write("Settings", "lastpath", music);
  EXPECT_EQ(InitialFolder(Ini(settingsFile), nomra::testing::RealLocations().HomeFolder()), music);
}

TEST_F(OpenCommandTest, InitialFolderIsHomeWhenTheRememberedOneIsGone) {
  const testing::ScopedEnvironment home("HOME", temp.Path() + "home");
  EXPECT_EQ(InitialFolder(Ini(settingsFile), nomra::testing::RealLocations().HomeFolder()), temp.Path() + "home/");
  Ini(settingsFile).Write("Settings", "lastpath", temp.Path() + "gone/");
  EXPECT_EQ(InitialFolder(Ini(settingsFile), nomra::testing::RealLocations().HomeFolder()), temp.Path() + "home/");
}

TEST_F(OpenCommandTest, LastFilterIndexIsTheStoredRow) {
  Ini(settingsFile).Write("Settings", "lastfilter", "3");
  EXPECT_EQ(LastFilterIndex(Ini(settingsFile)), 3);
}

TEST_F(OpenCommandTest, LastFilterIndexIsTheFirstRowWhenMissingBelowOneOrDamaged) {
  EXPECT_EQ(LastFilterIndex(Ini(settingsFile)), 1);
  for (const char* stored : {"0", "-4", "99999999999999999999", "three"}) {
    Ini(settingsFile).Write("Settings", "lastfilter", stored);
    EXPECT_EQ(LastFilterIndex(Ini(settingsFile)), 1) << stored;
  }
}

TEST_F(OpenCommandTest, RememberedLastPathEndsWithTheSeparatorAndIsWhereTheDialogsOpen) {
  const std::string music = temp.MakeFolder("music");
  formats::IniFile settings = Ini(settingsFile);
  RememberLastPath(settings, temp.Path() + "music");
  EXPECT_EQ(Setting("lastpath"), music);
  EXPECT_EQ(InitialFolder(Ini(settingsFile), nomra::testing::RealLocations().HomeFolder()), music);
}

}  // namespace
}  // namespace nomra::open
