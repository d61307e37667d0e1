// Copying lists of files between real folders.
#include <fcntl.h>
#include <sys/stat.h>

#include "fileops/FileListOperations.h"
#include "fileops/OperationsFixture.h"
#include "fileops/PathList.h"
#include "fileops/ShellOperation.h"

namespace nomra::fileops::testing {
namespace {

class CopyFilesTest : public OperationsTest {
 protected:
  // Writes `count` files "f000.txt"... into source/ and returns source and target lists.
  void MakeFiles(int count) {
    for (int i = 0; i < count; ++i) {
      char name[16];
      std::snprintf(name, sizeof name, "f%03d.txt", i);
      sources.push_back(temp.WriteFile(std::string("source/") + name, std::string("content of ") + name));
      targets.push_back(temp.Path() + "target/" + name);
    }
    temp.MakeFolder("target");
  }
  int Copy() { return CopyFileList(JoinPathList(sources), JoinPathList(targets), false, aborted, services); }

  std::vector<std::string> sources;
  std::vector<std::string> targets;
  int aborted = 99;
};

TEST_F(CopyFilesTest, ManyFilesAllArriveWithTheirBytes) {
  MakeFiles(250);

  EXPECT_EQ(Copy(), 0);

  EXPECT_EQ(aborted, 0);
  for (std::size_t i = 0; i < sources.size(); ++i) {
    ASSERT_EQ(ReadWholeFile(targets[i]), ReadWholeFile(sources[i])) << targets[i];
  }
  EXPECT_EQ(NamesIn(temp.Path() + "target/").size(), 250u);
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(CopyFilesTest, ProgressIsToldBeforeEachFileWithTheBytesSoFar) {
  MakeFiles(3);

  Copy();

  ASSERT_EQ(progress.begun.size(), 1u);
  EXPECT_EQ(progress.begun[0].count, 3);
  EXPECT_STREQ(progress.begun[0].task, lang::kCopying);
  EXPECT_EQ(progress.begun[0].bytesTotal, 3u * std::string("content of f000.txt").size());
  ASSERT_GE(progress.steps.size(), 3u);
  EXPECT_EQ(progress.steps.front().index, 1);
  EXPECT_EQ(progress.steps.front().path, sources[0]);
  EXPECT_EQ(progress.steps.back().index, 3);
  EXPECT_EQ(progress.ended, 1);
}

TEST_F(CopyFilesTest, CopyKeepsModificationTimeAndPermissions) {
  MakeFiles(1);
  chmod(sources[0].c_str(), 0640);
  const struct timespec times[2] = {{1000000000, 0}, {1100000000, 0}};
  utimensat(AT_FDCWD, sources[0].c_str(), times, 0);

  Copy();

  struct stat copied {};
  ASSERT_EQ(stat(targets[0].c_str(), &copied), 0);
  EXPECT_EQ(copied.st_mtim.tv_sec, 1100000000);
  EXPECT_EQ(copied.st_mode & 07777, 0640u);
}

TEST_F(CopyFilesTest, StopBetweenFilesLeavesTheRestAndSetsAborted) {
  MakeFiles(6);
  progress.stopAtFile = 4;

  Copy();

  EXPECT_EQ(aborted, -1);
  EXPECT_EQ(NamesIn(temp.Path() + "target/"), (std::vector<std::string>{"f000.txt", "f001.txt", "f002.txt"}));
  EXPECT_EQ(progress.ended, 1);
}

TEST_F(CopyFilesTest, StopWhileALargeFileIsCopiedLeavesNoPartOfIt) {
  sources.push_back(temp.WriteFile("source/big.bin", std::string(9 * 1024 * 1024, 'b')));
  targets.push_back(temp.MakeFolder("target") + "big.bin");
  progress.stopAtFile = 0;
  int reports = 0;
  // The first report is the one before the file; the next comes from inside its copy.
  struct StopInside final : core::Progress {
    int& reports;
    explicit StopInside(int& r) : reports(r) {}
    bool Tick(const core::ProgressStep&) override { return ++reports < 2; }
  } stopInside(reports);
  platform::FreedesktopTrash stoppingTrash{os, nomra::testing::RealLocations()};
  OperationServices stopping{os, stoppingTrash, frontEnd, stopInside, services.clock};

  CopyFileList(JoinPathList(sources), JoinPathList(targets), false, aborted, stopping);

  EXPECT_EQ(aborted, -1);
  EXPECT_GE(reports, 2);
  EXPECT_TRUE(NamesIn(temp.Path() + "target/").empty());
  EXPECT_EQ(ReadWholeFile(sources[0]).size(), 9u * 1024 * 1024);
}

TEST_F(CopyFilesTest, MissingTargetFoldersAreMade) {
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  targets.push_back(temp.Path() + "deep/er/a.txt");

  EXPECT_EQ(Copy(), 0);

  EXPECT_EQ(ReadWholeFile(targets[0]), "a");
}

TEST_F(CopyFilesTest, OneTargetFolderTakesAllSourcesUnderTheirNames) {
  MakeFiles(3);
  const std::string folder = temp.Path() + "target";

  EXPECT_EQ(CopyFileList(JoinPathList(sources), JoinPathList({folder}), false, aborted, services), 0);

  EXPECT_EQ(NamesIn(folder + "/"), (std::vector<std::string>{"f000.txt", "f001.txt", "f002.txt"}));
}

TEST_F(CopyFilesTest, OneSourceAndOneTargetThatIsNoFolderGivesTheCopysPath) {
  sources.push_back(temp.WriteFile("source/a.txt", "a"));
  const std::string target = temp.Path() + "renamed.txt";

  CopyFileList(JoinPathList(sources), JoinPathList({target}), false, aborted, services);

  EXPECT_EQ(ReadWholeFile(target), "a");
}

TEST_F(CopyFilesTest, WildcardCopiesTheMatchingFilesOnly) {
  temp.WriteFile("source/a.jpg", "a");
  temp.WriteFile("source/b.jpg", "b");
  temp.WriteFile("source/c.txt", "c");
  temp.MakeFolder("source/d.jpg");
  const std::string folder = temp.MakeFolder("target");

  CopyFileList(JoinPathList({temp.Path() + "source/*.jpg"}), JoinPathList({folder}), false, aborted, services);

  EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"a.jpg", "b.jpg"}));
}

TEST_F(CopyFilesTest, CopyOntoItselfIsKeptBesideIt) {
  sources.push_back(temp.WriteFile("same/a.txt", "a"));
  targets = sources;

  EXPECT_EQ(Copy(), 0);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(NamesIn(temp.Path() + "same/"), (std::vector<std::string>{"a (2).txt", "a.txt"}));
}

TEST_F(CopyFilesTest, NoWorkFileIsLeftBehind) {
  MakeFiles(20);

  Copy();

  for (const std::string& name : NamesIn(temp.Path() + "target/"))
    EXPECT_EQ(name.rfind(".nomra", 0), std::string::npos);
}

TEST_F(CopyFilesTest, MissingSourceIsToldAndTheOthersGoOn) {
  MakeFiles(3);
  std::remove(sources[1].c_str());
  frontEnd.answers = {core::Answer::Ok, core::Answer::Yes};

  EXPECT_EQ(Copy(), ENOENT);

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kSourceMissing, lang::kGoOn}));
  EXPECT_EQ(NamesIn(temp.Path() + "target/"), (std::vector<std::string>{"f000.txt", "f002.txt"}));
}

}  // namespace
}  // namespace nomra::fileops::testing
