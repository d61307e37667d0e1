// The commit on a real FAT volume, mounted through FUSE: the volume ignores
// case, as a camera card does, and this driver refuses names outside ASCII,
// the temporary names of cycles and swaps among them.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "commit/CommitExecution.h"
#include "commit/CommitFileSystem.h"
#include "commit/CommitFixture.h"
#include "commit/FatVolume.h"
#include "commit/RandomBatch.h"
#include "commit/RenameFiles.h"
#include "core/AddFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ListFixture.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {
namespace {

constexpr int kBatches = 60;  // every call crosses FUSE: far fewer than on the temporary folder

constexpr char kDriverLosesFiles[] =
    "this FAT driver refuses a rename to a name ending in the temporary mark and loses the file it was asked "
    "to rename, so no commit through a temporary name can keep every file here";

class FatVolumeCommit : public ListTestOver<CommitFileSystem> {
 protected:
  FatVolumeCommit() {
    texts.renamed = "Renamed";
    options.dataFolder = data.Path();
    fileSystem.ownFolder = data.Path();
  }

  void SetUp() override {
    if (!volume.Mount(work.Path())) GTEST_SKIP() << "no FAT volume to test on: " << volume.Problem();
  }
  // Also after a failed assertion, so no mount outlives the test.
  void TearDown() override { volume.Unmount(); }

  // A folder of its own on the volume, ending with the separator.
  std::string Folder(const std::string& name) const {
    const std::string folder = volume.Path() + name + "/";
    std::filesystem::create_directory(folder);
    return folder;
  }

  static void WriteFileAt(const std::string& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary);
    out << content;
    ASSERT_TRUE(out) << "cannot write " << path;
  }

  // The names in the folder as its listing spells them, sorted.
  static std::vector<std::string> Listing(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  // Loads the file at `path` as the next row and gives it a pending name.
  core::FileEntry& AddRow(std::string path, const std::string& newName) {
    core::AddFile(load, path);
    preview.Refresh();
    core::FileEntry* row = state.list.Find(path);
    if (row == nullptr) throw std::runtime_error("no row for " + path);
    (*row)[core::kColNewName] = newName;
    preview.Refresh();
    return *row;
  }

  // The old paths of the renames the report names, as the report quotes them.
  static std::set<std::string> ReportedPaths(const commit::CommitResult& result) {
    std::set<std::string> paths;
    for (const commit::ReportRow& row : result.notRenamed) {
      if (!row.arguments.empty()) paths.insert(row.arguments[0]);
    }
    return paths;
  }

  // Whether the driver takes a file whose name ends in the temporary mark.
  static bool AcceptsTemporaryNames(const std::string& folder) {
    const std::string probe = folder + "probe" + std::string(commit::kTemporaryMark);
    const int fd = open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    close(fd);
    unlink(probe.c_str());
    return true;
  }

  // Whether a file survives the driver's refusal to rename it to a name
  // ending in the temporary mark. Where it doesn't, every move of a cycle,
  // a swap or a change of case destroys a file whatever the commit does,
  // and a test of the commit would only measure the driver.
  static bool RefusedRenameKeepsTheFile(const std::string& folder) {
    const std::string probe = folder + "probe";
    std::ofstream(probe, std::ios::binary) << "probe";
    const std::string temporary = probe + std::string(commit::kTemporaryMark);
    if (std::rename(probe.c_str(), temporary.c_str()) == 0) {
      std::remove(temporary.c_str());
      return true;
    }
    const bool kept = ReadWholeFile(probe) == "probe";
    std::remove(probe.c_str());
    return kept;
  }

  // Declared first, so the image and mount point go only after the unmount.
  TempFolder work;
  TempFolder data;
  FatVolume volume;
};

TEST_F(FatVolumeCommit, TheVolumeIsFoundToIgnoreCase) {
  const std::string folder = Folder("probe");
  WriteFileAt(folder + "a.txt", "x");
  // The driver itself: the same file under another spelling.
  ASSERT_TRUE(Exists(folder + "A.TXT")) << "fusefat no longer ignores case; the test's premise is gone";
  platform::PosixFileSystem real;
  EXPECT_TRUE(real.IsCaseInsensitiveFolder(folder));
}

TEST_F(FatVolumeCommit, AnEmptyFolderOfTheVolumeIsFoundToIgnoreCase) {
  const std::string folder = Folder("empty");
  // With no name inside to flip, the folder's own name within its parent is looked up.
  ASSERT_TRUE(Exists(volume.Path() + "EMPTY")) << "fusefat no longer ignores case; the test's premise is gone";
  EXPECT_TRUE(platform::ProbeCaseInsensitiveFolder(folder));
  platform::PosixFileSystem real;
  EXPECT_TRUE(real.IsCaseInsensitiveFolder(folder));
}

TEST_F(FatVolumeCommit, TwoFoldersOfTheVolumeAreEachFoundToIgnoreCase) {
  const std::string full = Folder("full");
  const std::string empty = Folder("empty");
  WriteFileAt(full + "b.txt", "x");
  // One volume, one rule, whichever way each folder is probed.
  platform::PosixFileSystem real;
  EXPECT_TRUE(real.IsCaseInsensitiveFolder(full));
  EXPECT_TRUE(real.IsCaseInsensitiveFolder(empty));
  EXPECT_TRUE(real.IsCaseInsensitiveFolder(full));
}

TEST_F(FatVolumeCommit, RandomBatchesKeepEveryFileAndTheListMatchesTheDisk) {
  if (!RefusedRenameKeepsTheFile(Folder("driver"))) GTEST_SKIP() << kDriverLosesFiles;
  const std::uint64_t seed = ChooseSeed();
  std::cout << "[ seed     ] " << seed << " (FAT volume through fusefat; NOMRA_COMMIT_SEED=" << seed
            << " repeats it)\n";
  RecordProperty("seed", std::to_string(seed));
  BatchGenerator generator(seed, false);
  const BatchVolume fat{volume.Path(), data.Path(), CaseMode::Sensitive, true};
  for (int number = 0; number < BatchCount(kBatches); ++number) {
    const BatchPlan plan = generator.Next();
    SCOPED_TRACE("seed " + std::to_string(seed) + ", batch " + std::to_string(number) + ":\n" + plan.Describe());
    RunBatch(fat, generator, plan, number);
    if (HasFailure()) return;
  }
}

TEST_F(FatVolumeCommit, AChangeOfCaseAloneLeavesTheNewSpellingOnDisk) {
  const std::string folder = Folder("case");
  // Where case doesn't count the file itself stands under the new spelling,
  // so the change goes through a temporary name.
  if (!RefusedRenameKeepsTheFile(folder)) GTEST_SKIP() << kDriverLosesFiles;
  WriteFileAt(folder + "n1", "content of n1");
  core::FileEntry& row = AddRow(folder + "n1", "N1");

  const commit::CommitResult result = commit::mdlRenameFiles(Commit(), commit::kWholeList, FixedLocalTime);
  preview.Refresh();

  EXPECT_EQ(Listing(folder), std::vector<std::string>{"N1"});
  EXPECT_EQ(ReadWholeFile(folder + "N1"), "content of n1");
  EXPECT_TRUE(result.notRenamed.empty()) << result.notRenamed.front().Describe();
  EXPECT_EQ(row.key, folder + "N1");
  EXPECT_EQ(row[core::kColOldName], "N1");
  EXPECT_FALSE(row.HasPendingChange());
}

TEST_F(FatVolumeCommit, ASwapEndsAsTheDriverAllowsTemporaryNames) {
  const std::string folder = Folder("swap");
  if (!RefusedRenameKeepsTheFile(folder)) GTEST_SKIP() << kDriverLosesFiles;
  const bool acceptsTemporary = AcceptsTemporaryNames(folder);
  std::cout << "[ driver   ] " << (acceptsTemporary ? "takes" : "refuses") << " a name ending in the temporary mark\n";
  WriteFileAt(folder + "a", "content of a");
  WriteFileAt(folder + "b", "content of b");
  core::FileEntry& first = AddRow(folder + "a", "b");
  core::FileEntry& second = AddRow(folder + "b", "a");

  const commit::CommitResult result = commit::mdlRenameFiles(Commit(), commit::kWholeList, FixedLocalTime);
  preview.Refresh();

  EXPECT_EQ(Listing(folder), (std::vector<std::string>{"a", "b"}));
  if (acceptsTemporary) {
    EXPECT_EQ(ReadWholeFile(folder + "a"), "content of b");
    EXPECT_EQ(ReadWholeFile(folder + "b"), "content of a");
    EXPECT_TRUE(result.notRenamed.empty()) << result.notRenamed.front().Describe();
    EXPECT_EQ(first.key, folder + "b");
    EXPECT_EQ(second.key, folder + "a");
    EXPECT_FALSE(first.HasPendingChange());
    EXPECT_FALSE(second.HasPendingChange());
  } else {
    EXPECT_EQ(ReadWholeFile(folder + "a"), "content of a");
    EXPECT_EQ(ReadWholeFile(folder + "b"), "content of b");
    EXPECT_EQ(ReportedPaths(result), (std::set<std::string>{"\"" + folder + "a\"", "\"" + folder + "b\""}));
    EXPECT_EQ(first.key, folder + "a");
    EXPECT_EQ(second.key, folder + "b");
    EXPECT_EQ(first[core::kColNewName], "b");
    EXPECT_EQ(second[core::kColNewName], "a");
  }
}

}  // namespace
}  // namespace nomra::testing
