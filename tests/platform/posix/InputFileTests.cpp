#include <gtest/gtest.h>

#include <cerrno>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::platform {
namespace {

using testing::TempFolder;

TEST(InputFile, ReadsAPartWhereItLiesAndLessAtTheEnd) {
  TempFolder folder;
  const std::string path = folder.WriteFile("a.bin", "0123456789");
  PosixFileSystem files;
  int error = -1;
  const auto file = files.OpenForReading(path, error);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(file->Size(), 10u);
  char buffer[8] = {};
  EXPECT_EQ(file->ReadAt(3, buffer, 4), 4);
  EXPECT_EQ(std::string(buffer, 4), "3456");
  EXPECT_EQ(file->ReadAt(8, buffer, 8), 2);
  EXPECT_EQ(std::string(buffer, 2), "89");
  EXPECT_EQ(file->ReadAt(10, buffer, 8), 0);
  EXPECT_EQ(file->ReadAt(1000, buffer, 8), 0);
}

TEST(InputFile, AFolderOpensButEachReadFailsAsAFolder) {
  TempFolder folder;
  PosixFileSystem files;
  int error = -1;
  const auto file = files.OpenForReading(folder.MakeFolder("sub"), error);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(error, 0);
  char buffer[8];
  EXPECT_EQ(file->ReadAt(0, buffer, sizeof buffer), -1);
  EXPECT_EQ(file->Error(), EISDIR);
  EXPECT_EQ(file->Size(), 0u);
}

TEST(InputFile, TheSizeIsAskedWhenWantedAndKept) {
  TempFolder folder;
  const std::string path = folder.WriteFile("grows.txt", "12345");
  PosixFileSystem files;
  int error = 0;
  const auto file = files.OpenForReading(path, error);
  ASSERT_NE(file, nullptr);
  folder.WriteFile("grows.txt", "1234567890");
  EXPECT_EQ(file->Size(), 10u);
  folder.WriteFile("grows.txt", "1");
  EXPECT_EQ(file->Size(), 10u);
}

TEST(InputFile, AMissingFileGivesItsError) {
  TempFolder folder;
  PosixFileSystem files;
  int error = 0;
  EXPECT_EQ(files.OpenForReading(folder.Path() + "none", error), nullptr);
  EXPECT_EQ(error, ENOENT);
}

TEST(InputFile, AnEmptyFileOpensWithSizeZero) {
  TempFolder folder;
  PosixFileSystem files;
  int error = 0;
  const auto file = files.OpenForReading(folder.WriteFile("empty"), error);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Size(), 0u);
  file->ExpectOneSequentialPass();
  char buffer[4];
  EXPECT_EQ(file->ReadAt(0, buffer, 4), 0);
}

}  // namespace
}  // namespace nomra::platform
