// Folders that the file system refuses to list, made so on the real disk:
// every walk passes over them and goes on.
#include <gtest/gtest.h>

#include <dirent.h>

#include <filesystem>

#include "OpenFixture.h"
#include "open/OpenCommand.h"
#include "open/StagedFiles.h"
#include "support/RealFiles.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

namespace fs = std::filesystem;

class UnreadableFolderTest : public testing::OpenTest {
 protected:
  UnreadableFolderTest() {
    top = temp.WriteFile("music/top.mp3");
    temp.WriteFile("music/A/a.mp3");
    temp.WriteFile("music/A/AA/deep.mp3");
    b = temp.WriteFile("music/B/b.mp3");
    deepB = temp.WriteFile("music/B/BB/deep.mp3");
  }

  // Takes every permission from music/A; false when it can still be listed,
  // as it can for root, whom permissions don't stop.
  bool LockFolderA() {
    const std::string folder = temp.Path() + "music/A";
    fs::permissions(folder, fs::perms::none);
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr) return true;
    closedir(dir);
    return false;
  }

  ~UnreadableFolderTest() override {
    std::error_code ignored;
    fs::permissions(temp.Path() + "music/A", fs::perms::owner_all, ignored);
  }

  std::string top;
  std::string b;
  std::string deepB;
};

constexpr const char* kReadableAnyway =
    "a folder without permissions can still be read here (running as root or with CAP_DAC_OVERRIDE)";

TEST_F(UnreadableFolderTest, AllFilesWithSubFoldersPassOverItAndGoOn) {
  if (!LockFolderA()) GTEST_SKIP() << kReadableAnyway;
  OpenChoice choice;
  choice.paths = {temp.Path() + "music"};
  choice.allFiles = true;
  choice.subFolders = true;

  EXPECT_EQ(RunOpenChoice(load, preview, choice, {{"All files", "*.*"}}, Ini(settingsFile), false), LoadOutcome::Finished);

  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, b, deepB}));
  EXPECT_EQ(Setting("lastpath"), temp.Path() + "music/");
}

TEST_F(UnreadableFolderTest, StagingPassesOverItAndGoesOn) {
  if (!LockFolderA()) GTEST_SKIP() << kReadableAnyway;
  FolderSelection selection;
  selection.folder = temp.Path() + "music";
  selection.subFolders = true;

  EXPECT_EQ(StageFiles(selection, fileSystem), (std::vector<std::string>{b, deepB}));
}

TEST_F(UnreadableFolderTest, FolderEntryOfAPlaylistPassesOverItAndGoesOn) {
  if (!LockFolderA()) GTEST_SKIP() << kReadableAnyway;
  const std::string list = temp.WriteFile("list.m3u", "music\n");

  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);

  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, b, deepB}));
  EXPECT_TRUE(Refreshed());
}

}  // namespace
}  // namespace nomra::open
