// A stop pressed in the middle of a large load: the rows added so far stay,
// and the loads leave the flag, the pointer and the settings as they should.
#include <gtest/gtest.h>
#include <unistd.h>

#include <memory>

#include "OpenFixture.h"
#include "open/OpenCommand.h"
#include "open/StagedFiles.h"
#include "support/RealFiles.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

constexpr int kFileCount = 50000;
constexpr long kStopAfter = 20000;

class LargeFolderCancelTest : public testing::OpenTest {
 protected:
  // The files are names of one empty file, hard links: to the list each is
  // a file of its own, and making them costs a fraction of making fifty
  // thousand files. The tests of one run share them and only read them.
  static void SetUpTestSuite() {
    shared_ = std::make_unique<testing::TempFolder>();
    const std::string folder = shared_->MakeFolder("many");
    const std::string first = shared_->WriteFile("many/" + FileName(0));
    std::string playlist = first + "\n";
    for (int i = 1; i < kFileCount; ++i) {
      const std::string path = folder + FileName(i);
      // A file system without hard links gets real files.
      if (::link(first.c_str(), path.c_str()) != 0) shared_->WriteFile("many/" + FileName(i));
      playlist += path + "\n";
    }
    shared_->WriteFile("many.m3u", playlist);
  }
  static void TearDownTestSuite() { shared_.reset(); }

  static std::string FileName(int number) { return "file" + std::to_string(number) + ".txt"; }
  static std::string Folder() { return shared_->Path() + "many/"; }
  static std::string Playlist() { return shared_->Path() + "many.m3u"; }

  // The user presses the button once the stop count of files is reached;
  // AddFile lets events through on every hundredth call.
  void StopAfterManyFiles() {
    progress.onTick = [this] {
      if (state.addCounter < kStopAfter) return;
      if (busyDuringLoad < 0) busyDuringLoad = frontEnd.busyDepth;
      progress.stopNow = true;
    };
  }

  // Every row is one of the folder's files.
  bool RowsComeFromTheFolder() const {
    bool all = true;
    state.list.ForEach([&](const core::FileEntry& row) { all = all && row.key.starts_with(Folder()); });
    return all;
  }

  static std::unique_ptr<testing::TempFolder> shared_;
};

std::unique_ptr<testing::TempFolder> LargeFolderCancelTest::shared_;

TEST_F(LargeFolderCancelTest, AllFilesOfTheOpenCommandKeepWhatWasLoadedWhenStopped) {
  const std::vector<FilterRow> filters{{"All files", "*.*"}};
  OpenChoice choice;
  choice.paths = {Folder()};
  choice.allFiles = true;
  StopAfterManyFiles();

  EXPECT_EQ(RunOpenChoice(load, preview, choice, filters, Ini(settingsFile), false), LoadOutcome::Cancelled);

  // The file during whose adding the button was pressed still comes in.
  EXPECT_EQ(state.list.Count(), kStopAfter);
  EXPECT_GT(state.list.Count(), 0);
  EXPECT_LT(state.list.Count(), kFileCount);
  EXPECT_TRUE(RowsComeFromTheFolder());
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
  EXPECT_EQ(Setting("lastfilter"), "");
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(LargeFolderCancelTest, StagedFilesKeepWhatWasLoadedWhenStopped) {
  std::vector<std::string> staged;
  for (int i = 0; i < kFileCount; ++i) staged.push_back(Folder() + FileName(i));
  StopAfterManyFiles();

  EXPECT_EQ(LoadStagedFiles(load, preview, staged), LoadOutcome::Cancelled);

  EXPECT_EQ(state.list.Count(), kStopAfter);
  EXPECT_TRUE(RowKeys().contains(Folder() + FileName(0)));
  EXPECT_FALSE(RowKeys().contains(Folder() + FileName(kStopAfter)));
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_TRUE(staged.empty());
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(LargeFolderCancelTest, PlaylistKeepsWhatWasLoadedAndLeavesTheFlagToItsCaller) {
  StopAfterManyFiles();

  EXPECT_EQ(LoadPlaylist(load, preview, Playlist()), LoadOutcome::Cancelled);

  EXPECT_EQ(state.list.Count(), kStopAfter);
  EXPECT_TRUE(RowsComeFromTheFolder());
  EXPECT_TRUE(load.stopAsked);
  EXPECT_FALSE(Refreshed());
  // A playlist on its own shows no wait pointer; the command around it does.
  EXPECT_EQ(busyDuringLoad, 0);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(LargeFolderCancelTest, PlaylistOfTheOpenCommandIsStoppedAndTheFlagCleared) {
  OpenChoice choice;
  choice.mode = OpenMode::Playlists;
  choice.paths = {Playlist(), Playlist()};
  StopAfterManyFiles();

  EXPECT_EQ(RunOpenChoice(load, preview, choice, {}, Ini(settingsFile), false), LoadOutcome::Cancelled);

  EXPECT_EQ(state.list.Count(), kStopAfter);
  EXPECT_FALSE(load.stopAsked);
  EXPECT_TRUE(Refreshed());
  EXPECT_EQ(Setting("lastpath"), "");
  EXPECT_EQ(busyDuringLoad, 1);
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

}  // namespace
}  // namespace nomra::open
