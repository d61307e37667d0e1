#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <memory>
#include <string>

#include "support/PermissionCases.h"
#include "support/ScopedEnvironment.h"
#include "formats/AtomicFile.h"
#include "settings/CompactIniFile.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::Exists;
using nomra::testing::PermissionBits;
using nomra::testing::RealFiles;
using nomra::testing::ReadWholeFile;
using nomra::testing::ScopedEnvironment;
using nomra::testing::TempFolder;

TEST(SettingsAtomicFile, ReplacesTheContentAndLeavesOnlyTheFile) {
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

TEST(SettingsAtomicFile, NewFileGetsTheUmasksPermissions) {
  TempFolder temp;
  const mode_t old = umask(022);
  const bool written = RealFiles().ReplaceFile(temp.Path() + "f.txt", "x") == 0;
  umask(old);
  ASSERT_TRUE(written);
  EXPECT_EQ(PermissionBits(temp.Path() + "f.txt"), 0644u);
}

TEST(SettingsAtomicFile, TemporaryFileTakesTheModelsPermissions) {
  TempFolder temp;
  const auto model = temp.WriteFile("model", "m");
  ASSERT_EQ(chmod(model.c_str(), 0620), 0);
  ASSERT_EQ(RealFiles().WriteFile(temp.Path() + "t.tmp", "content", model), 0);
  EXPECT_EQ(PermissionBits(temp.Path() + "t.tmp"), 0620u);
  EXPECT_EQ(ReadWholeFile(temp.Path() + "t.tmp"), "content");
}

TEST(SettingsAtomicFile, MoveFileOverReplacesTheTarget) {
  TempFolder temp;
  const auto source = temp.WriteFile("a/source", "fresh");
  const auto target = temp.WriteFile("b/target", "stale");
  ASSERT_EQ(formats::MoveFileOver(RealFiles(), source, target), 0);
  EXPECT_EQ(ReadWholeFile(target), "fresh");
  EXPECT_FALSE(Exists(source));
}

TEST(SettingsAtomicFile, MoveFileOverFromAMissingSourceFails) {
  TempFolder temp;
  const auto target = temp.WriteFile("target", "kept");
  EXPECT_NE(formats::MoveFileOver(RealFiles(), temp.Path() + "absent", target), 0);
  EXPECT_EQ(ReadWholeFile(target), "kept");
}

// A temporary folder on the memory file system, when that is another file
// system than the usual temporary folder's; nothing otherwise.
std::unique_ptr<TempFolder> FolderOnAnotherFileSystem(const TempFolder& usual) {
  struct stat shm {}, tmp {};
  if (stat("/dev/shm", &shm) != 0 || stat(usual.Path().c_str(), &tmp) != 0 || shm.st_dev == tmp.st_dev) {
    return nullptr;
  }
  ScopedEnvironment tmpdir("TMPDIR", "/dev/shm");
  try {
    return std::make_unique<TempFolder>();
  } catch (const std::exception&) {
    return nullptr;
  }
}

TEST(SettingsAtomicFile, MoveFileOverCrossesFileSystems) {
  TempFolder temp;
  const auto other = FolderOnAnotherFileSystem(temp);
  if (!other) GTEST_SKIP() << "no second file system at /dev/shm";
  const auto source = other->WriteFile("source", "fresh");
  const auto target = temp.WriteFile("target", "stale");
  ASSERT_EQ(chmod(target.c_str(), 0640), 0);
  ASSERT_EQ(formats::MoveFileOver(RealFiles(), source, target), 0);
  EXPECT_EQ(ReadWholeFile(target), "fresh");
  EXPECT_EQ(PermissionBits(target), 0640u);
  EXPECT_FALSE(Exists(source));
}

TEST(SettingsAtomicFile, CompactionWithItsTemporaryFileOnAnotherFileSystem) {
  TempFolder temp;
  const auto other = FolderOnAnotherFileSystem(temp);
  if (!other) GTEST_SKIP() << "no second file system at /dev/shm";
  const auto settings = temp.WriteFile("settings.nrp", "[Main]\r\nA=<<DELETE>>\r\nB=1\r\n");
  ASSERT_TRUE(CompactIniFile(RealFiles(), settings, other->Path()));
  EXPECT_EQ(ReadWholeFile(settings), "[Main]\r\nB=1\r\n");
  EXPECT_FALSE(Exists(other->Path() + "format.tmp"));
}

}  // namespace
}  // namespace nomra::settings
