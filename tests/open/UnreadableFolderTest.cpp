// Folders that the file system refuses to list: every walk passes over
// them and goes on.
#include <gtest/gtest.h>

#include "OpenFixture.h"
#include "open/OpenCommand.h"
#include "open/StagedFiles.h"
#include "support/RealFiles.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

class UnreadableFolderTest : public testing::OpenTest {
 protected:
  UnreadableFolderTest() {
    top = temp.WriteFile("music/top.mp3");
    temp.WriteFile("music/A/a.mp3");
    temp.WriteFile("music/A/AA/deep.mp3");
    b = temp.WriteFile("music/B/b.mp3");
    deepB = temp.WriteFile("music/B/BB/deep.mp3");
  }

  // music/A can't be listed, as a folder without permissions for anyone
  // but root.
  void LockFolderA() { fileSystem.unreadable.insert(temp.Path() + "music/A/"); }

  std::string top;
  std::string b;
  std::string deepB;
};

TEST_F(UnreadableFolderTest, AllFilesWithSubFoldersPassOverItAndGoOn) {
  LockFolderA();
  OpenChoice choice;
  choice.paths = {temp.Path() + "music"};
  choice.allFiles = true;
  choice.subFolders = true;

  EXPECT_EQ(RunOpenChoice(load, preview, choice, {{"All files", "*.*"}}, Ini(settingsFile), false),
            LoadOutcome::Finished);

  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, b, deepB}));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
}

TEST_F(UnreadableFolderTest, StagingPassesOverItAndGoesOn) {
  LockFolderA();
  FolderSelection selection;
  selection.folder = temp.Path() + "music";
  selection.subFolders = true;

  EXPECT_EQ(StageFiles(selection, fileSystem), (std::vector<std::string>{b, deepB}));
}

TEST_F(UnreadableFolderTest, FolderEntryOfAPlaylistPassesOverItAndGoesOn) {
  LockFolderA();
  const std::string list = temp.WriteFile("list.m3u", "music\n");

  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);

  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, b, deepB}));
  EXPECT_TRUE(Refreshed());
}

}  // namespace
}  // namespace nomra::open
