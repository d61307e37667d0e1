#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "formats/AtomicFile.h"
#include "support/PermissionCases.h"
#include "support/RealFiles.h"
#include "support/SecondVolume.h"
#include "support/TempFolder.h"

namespace nomra::formats {
namespace {

using nomra::testing::Exists;
using nomra::testing::FolderOnSecondVolume;
using nomra::testing::kNoSecondVolume;
using nomra::testing::PermissionBits;
using nomra::testing::ReadWholeFile;
using nomra::testing::RealFiles;
using nomra::testing::TempFolder;

TEST(FormatsAtomicFile, ReplacesTheContentAndLeavesOnlyTheFile) {
  TempFolder temp;
  const auto file = temp.WriteFile("f.txt", "old content that is longer");
  ASSERT_EQ(RealFiles().ReplaceFile(file, "new"), 0);
  EXPECT_EQ(ReadWholeFile(file), "new");
  int entries = 0;
  for (const auto& entry : std::filesystem::directory_iterator(temp.Path())) {
    EXPECT_EQ(entry.path().filename(), "f.txt");
    ++entries;
  }
  EXPECT_EQ(entries, 1);
}

TEST(FormatsAtomicFile, NewFileGetsTheUmasksPermissions) {
  TempFolder temp;
  const mode_t old = umask(022);
  const bool written = RealFiles().ReplaceFile(temp.Path() + "f.txt", "x") == 0;
  umask(old);
  ASSERT_TRUE(written);
  EXPECT_EQ(PermissionBits(temp.Path() + "f.txt"), 0644u);
}

TEST(FormatsAtomicFile, TemporaryFileTakesTheModelsPermissions) {
  TempFolder temp;
  const auto model = temp.WriteFile("model", "m");
  ASSERT_EQ(chmod(model.c_str(), 0620), 0);
  ASSERT_EQ(RealFiles().WriteFile(temp.Path() + "t.tmp", "content", model), 0);
  EXPECT_EQ(PermissionBits(temp.Path() + "t.tmp"), 0620u);
  EXPECT_EQ(ReadWholeFile(temp.Path() + "t.tmp"), "content");
}

TEST(FormatsAtomicFile, MoveFileOverReplacesTheTarget) {
  TempFolder temp;
  const auto source = temp.WriteFile("a/source", "fresh");
  const auto target = temp.WriteFile("b/target", "stale");
  ASSERT_EQ(MoveFileOver(RealFiles(), source, target), 0);
  EXPECT_EQ(ReadWholeFile(target), "fresh");
  EXPECT_FALSE(Exists(source));
}

TEST(FormatsAtomicFile, MoveFileOverFromAMissingSourceFails) {
  TempFolder temp;
  const auto target = temp.WriteFile("target", "kept");
  EXPECT_NE(MoveFileOver(RealFiles(), temp.Path() + "absent", target), 0);
  EXPECT_EQ(ReadWholeFile(target), "kept");
}

TEST(FormatsAtomicFile, MoveFileOverCrossesFileSystems) {
  TempFolder temp;
  const auto other = FolderOnSecondVolume(temp);
  if (!other) GTEST_SKIP() << kNoSecondVolume;
  const auto source = other->WriteFile("source", "fresh");
  const auto target = temp.WriteFile("target", "stale");
  ASSERT_EQ(chmod(target.c_str(), 0640), 0);
  ASSERT_EQ(MoveFileOver(RealFiles(), source, target), 0);
  EXPECT_EQ(ReadWholeFile(target), "fresh");
  EXPECT_EQ(PermissionBits(target), 0640u);
  EXPECT_FALSE(Exists(source));
}

}  // namespace
}  // namespace nomra::formats
