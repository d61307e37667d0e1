// Failures of the system: each is told, the source is never lost, and no
// part of a copy is left behind.
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "fileops/FileListOperations.h"
#include "fileops/OperationsFixture.h"
#include "fileops/PathList.h"

namespace nomra::fileops::testing {
namespace {

// Copies as the real system does, but the copy numbered `failAt` (from 1)
// fails with `error`, having written half the file and left it there.
class FailingCopySystem final : public ForwardingFileSystem {
 public:
  int CopyFile(const std::string& from, const std::string& to, const platform::CopyTick& tick, bool durable) override {
    if (++copies != failAt) return real.CopyFile(from, to, tick, durable);
    const std::string bytes = ReadWholeFile(from);
    std::ofstream(to, std::ios::binary) << bytes.substr(0, bytes.size() / 2);
    return error;
  }
  int copies = 0;
  int failAt = 0;
  int error = 0;
};

class FaultTest : public OperationsTest {
 protected:
  void MakeFiles(int count) {
    for (int i = 1; i <= count; ++i) {
      const std::string name = "f" + std::to_string(i) + ".txt";
      sources.push_back(temp.WriteFile("source/" + name, "bytes of " + name));
      targets.push_back(temp.Path() + "target/" + name);
    }
    temp.MakeFolder("target");
  }
  int Run(platform::FileSystem& with, bool move = false) {
    platform::FreedesktopTrash bentTrash{with, nomra::testing::RealLocations()};
    OperationServices bent{with, bentTrash, frontEnd, progress, services.clock};
    const std::string from = JoinPathList(sources);
    const std::string to = JoinPathList(targets);
    return move ? MoveFileList(from, to, false, aborted, bent) : CopyFileList(from, to, false, aborted, bent);
  }
  std::vector<std::string> Targets() { return NamesIn(temp.Path() + "target/"); }

  std::vector<std::string> sources;
  std::vector<std::string> targets;
  int aborted = 99;
};

TEST_F(FaultTest, AccessDeniedOnTheThirdFileIsToldAndTheRestGoOnWhenAsked) {
  MakeFiles(5);
  FailingCopySystem failing;
  failing.failAt = 3;
  failing.error = EACCES;
  frontEnd.answers = {core::Answer::Ok, core::Answer::Yes};

  EXPECT_EQ(Run(failing), EACCES);

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kAccessDenied, lang::kGoOn}));
  EXPECT_EQ(frontEnd.asked[0].arguments, (std::vector<std::string>{sources[2], temp.Path() + "target/"}));
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::OkStop);
  EXPECT_EQ(frontEnd.asked[1].arguments, std::vector<std::string>{"2"});
  EXPECT_EQ(Targets(), (std::vector<std::string>{"f1.txt", "f2.txt", "f4.txt", "f5.txt"}));
  EXPECT_EQ(aborted, 0);
}

TEST_F(FaultTest, NoToGoingOnStopsAfterTheFailure) {
  MakeFiles(5);
  FailingCopySystem failing;
  failing.failAt = 3;
  failing.error = EACCES;
  frontEnd.answers = {core::Answer::Ok, core::Answer::No};

  Run(failing);

  EXPECT_EQ(Targets(), (std::vector<std::string>{"f1.txt", "f2.txt"}));
  EXPECT_EQ(aborted, -1);
}

TEST_F(FaultTest, DiskThatFillsLeavesNoPartOfTheCopyAndTellsWhy) {
  MakeFiles(1);
  FailingCopySystem failing;
  failing.failAt = 1;
  failing.error = ENOSPC;

  EXPECT_EQ(Run(failing), ENOSPC);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kDiskFull});
  EXPECT_TRUE(Targets().empty());
  EXPECT_EQ(ReadWholeFile(sources[0]), "bytes of f1.txt");
}

TEST_F(FaultTest, DiskThatFillsDuringAMoveAcrossVolumesKeepsTheSource) {
  MakeFiles(1);
  struct CrossingAndFull final : CrossVolumeSystem {
    int CopyFile(const std::string&, const std::string& to, const platform::CopyTick&, bool) override {
      std::ofstream(to, std::ios::binary) << "half";
      return ENOSPC;
    }
  } full;

  EXPECT_EQ(Run(full, true), ENOSPC);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kDiskFull});
  EXPECT_TRUE(Targets().empty());
  EXPECT_EQ(ReadWholeFile(sources[0]), "bytes of f1.txt");
}

TEST_F(FaultTest, CopyShorterThanItsSourceIsNotTakenAndTheMoveKeepsTheSource) {
  MakeFiles(1);
  struct CrossingShort final : CrossVolumeSystem {
    int CopyFile(const std::string& from, const std::string& to, const platform::CopyTick&, bool) override {
      std::ofstream(to, std::ios::binary) << ReadWholeFile(from).substr(1);
      return 0;
    }
  } shortCopies;

  EXPECT_EQ(Run(shortCopies, true), EIO);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kMoveFailed});
  EXPECT_TRUE(Targets().empty());
  EXPECT_EQ(ReadWholeFile(sources[0]), "bytes of f1.txt");
}

TEST_F(FaultTest, TargetFolderThatIsAFileIsNamedInTheMessage) {
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  const std::string blocker = temp.WriteFile("blocker", "I am a file");
  targets.push_back(blocker + "/inner/a.txt");

  EXPECT_EQ(Run(os), ENOTDIR);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kNotAFolder});
  EXPECT_EQ(frontEnd.asked[0].arguments, std::vector<std::string>{blocker});
  EXPECT_EQ(ReadWholeFile(blocker), "I am a file");
  EXPECT_EQ(ReadWholeFile(sources[0]), "a");
}

// A folder that refuses new files even to the superuser: the immutable
// attribute where the volume has it, else plain permission bits.
bool MakeReadOnly(const std::string& folder) {
  if (geteuid() != 0) return chmod(folder.c_str(), 0555) == 0;
  return std::system(("chattr +i '" + folder + "' 2>/dev/null").c_str()) == 0;
}

void MakeWritable(const std::string& folder) {
  if (geteuid() == 0) std::system(("chattr -i '" + folder + "' 2>/dev/null").c_str());
  chmod(folder.c_str(), 0755);
}

TEST_F(FaultTest, ReadOnlyTargetFolderIsToldAsAccessDenied) {
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  const std::string folder = temp.MakeFolder("locked");
  if (!MakeReadOnly(folder)) GTEST_SKIP() << "no way to make a folder read-only here";
  targets.push_back(folder + "a.txt");

  const int result = Run(os);
  const std::vector<std::string> left = NamesIn(folder);
  MakeWritable(folder);

  EXPECT_TRUE(result == EACCES || result == EPERM) << result;
  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kAccessDenied});
  EXPECT_TRUE(left.empty());
  EXPECT_EQ(ReadWholeFile(sources[0]), "a");
}

// A real volume of 64 KiB that a larger file fills.
TEST_F(FaultTest, RealFullVolumeLeavesNothingOfTheCopy) {
  const std::string volume = temp.MakeFolder("small");
  if (geteuid() != 0 || mount("tmpfs", volume.c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "no small volume can be mounted here";
  }
  // However the test ends, the volume goes before its folder is removed.
  struct Unmount {
    std::string path;
    ~Unmount() { umount(path.c_str()); }
  } unmount{volume};
  sources.push_back(temp.WriteFile("source/big.bin", std::string(256 * 1024, 'x')));
  targets.push_back(volume + "big.bin");

  const int result = Run(os);
  const std::vector<std::string> left = NamesIn(volume);

  EXPECT_EQ(result, ENOSPC);
  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kDiskFull});
  EXPECT_TRUE(left.empty());
  EXPECT_EQ(ReadWholeFile(sources[0]).size(), 256u * 1024);
}

}  // namespace
}  // namespace nomra::fileops::testing
