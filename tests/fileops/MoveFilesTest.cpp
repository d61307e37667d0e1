// Moving files within a volume and across volumes.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "fileops/FileListOperations.h"
#include "fileops/OperationsFixture.h"
#include "fileops/PathList.h"
#include "support/SecondVolume.h"

namespace nomra::fileops::testing {
namespace {

ino_t InodeOf(const std::string& path) {
  struct stat st {};
  stat(path.c_str(), &st);
  return st.st_ino;
}

// Moves across volumes whose copies are counted and whose source may refuse to go.
class CountingCrossVolumeSystem final : public CrossVolumeSystem {
 public:
  int RemoveFile(const std::string& path) override {
    if (path == refuseRemoving) return EACCES;
    return real.RemoveFile(path);
  }
  int CopyFile(const std::string& from, const std::string& to, const platform::CopyTick& tick, bool durable) override {
    durableCopies += durable ? 1 : 0;
    return real.CopyFile(from, to, tick, durable);
  }
  int durableCopies = 0;
  std::string refuseRemoving;
};

class MoveFilesTest : public OperationsTest {
 protected:
  int Move(OperationServices& with) {
    return MoveFileList(JoinPathList(sources), JoinPathList(targets), false, aborted, with);
  }

  std::vector<std::string> sources;
  std::vector<std::string> targets;
  int aborted = 99;
};

TEST_F(MoveFilesTest, WithinAVolumeTheFileIsRenamed) {
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  const ino_t inode = InodeOf(sources[0]);
  targets.push_back(temp.MakeFolder("target") + "a.txt");

  EXPECT_EQ(Move(services), 0);

  EXPECT_FALSE(nomra::testing::Exists(sources[0]));
  EXPECT_EQ(InodeOf(targets[0]), inode);
  EXPECT_EQ(aborted, 0);
}

TEST_F(MoveFilesTest, AcrossRealVolumesTheFileIsCopiedThenTheSourceGoes) {
  const auto volume = nomra::testing::FolderOnSecondVolume(temp);
  if (!volume) GTEST_SKIP() << nomra::testing::kNoSecondVolume;
  const std::string folder = volume->Path();
  sources.push_back(temp.WriteFile("source/a.txt", std::string(100000, 'm')));
  const struct timespec times[2] = {{1000000000, 0}, {1200000000, 0}};
  utimensat(AT_FDCWD, sources[0].c_str(), times, 0);
  targets.push_back(folder + "a.txt");

  const int result = Move(services);
  const std::string moved = ReadWholeFile(targets[0]);
  struct stat target {};
  stat(targets[0].c_str(), &target);
  const std::vector<std::string> left = NamesIn(folder);

  EXPECT_EQ(result, 0);
  EXPECT_EQ(moved, std::string(100000, 'm'));
  EXPECT_EQ(target.st_mtim.tv_sec, 1200000000);
  EXPECT_FALSE(nomra::testing::Exists(sources[0]));
  EXPECT_EQ(left, std::vector<std::string>{"a.txt"});
}

TEST_F(MoveFilesTest, AcrossVolumesTheCopyIsMadeDurableBeforeTheSourceGoes) {
  CountingCrossVolumeSystem crossing;
  platform::FreedesktopTrash withTrash{crossing, nomra::testing::RealLocations()};
  OperationServices with{crossing, withTrash, frontEnd, progress, services.clock};
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  targets.push_back(temp.MakeFolder("target") + "a.txt");

  EXPECT_EQ(Move(with), 0);

  EXPECT_EQ(crossing.crossings, 1);
  EXPECT_EQ(crossing.durableCopies, 1);
  EXPECT_EQ(ReadWholeFile(targets[0]), "a");
  EXPECT_FALSE(nomra::testing::Exists(sources[0]));
}

TEST_F(MoveFilesTest, SourceThatCantBeRemovedAfterTheCopyIsToldAndKept) {
  CountingCrossVolumeSystem crossing;
  platform::FreedesktopTrash withTrash{crossing, nomra::testing::RealLocations()};
  OperationServices with{crossing, withTrash, frontEnd, progress, services.clock};
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  targets.push_back(temp.MakeFolder("target") + "a.txt");
  crossing.refuseRemoving = sources[0];

  EXPECT_EQ(Move(with), EACCES);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kOriginalKept});
  EXPECT_EQ(ReadWholeFile(sources[0]), "a");
  EXPECT_EQ(ReadWholeFile(targets[0]), "a");
}

TEST_F(MoveFilesTest, MoveOntoItselfChangesNothing) {
  sources.push_back(temp.WriteFile("same/a.txt", "a"));
  targets = sources;

  EXPECT_EQ(Move(services), 0);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesIn(temp.Path() + "same/"), std::vector<std::string>{"a.txt"});
}

TEST_F(MoveFilesTest, ReplacingOnAMoveTakesTheFileThereAway) {
  sources.push_back(temp.WriteFile("source/a.txt", "new"));
  targets.push_back(temp.WriteFile("target/a.txt", "old"));
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_EQ(Move(services), 0);

  EXPECT_EQ(ReadWholeFile(targets[0]), "new");
  EXPECT_FALSE(nomra::testing::Exists(sources[0]));
}

TEST_F(MoveFilesTest, SkippedMoveLeavesBothFiles) {
  sources.push_back(temp.WriteFile("source/a.txt", "new"));
  targets.push_back(temp.WriteFile("target/a.txt", "old"));
  frontEnd.answers = {core::Answer::No, core::Answer::No};

  Move(services);

  EXPECT_EQ(ReadWholeFile(targets[0]), "old");
  EXPECT_EQ(ReadWholeFile(sources[0]), "new");
}

}  // namespace
}  // namespace nomra::fileops::testing
