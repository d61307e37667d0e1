// What the properties dialog shows of a file, as the system tells it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::platform {
namespace {

using nomra::testing::TempFolder;

TEST(FilePropertiesTest, FileShowsItsSizeTimesOwnerAndPermissions) {
  TempFolder temp;
  const std::string file = temp.WriteFile("a.txt", "twelve bytes");
  chmod(file.c_str(), 0640);
  const struct timespec times[2] = {{1000000000, 0}, {1100000000, 0}};
  utimensat(AT_FDCWD, file.c_str(), times, 0);

  const FileProperties properties = PosixFileSystem().Properties(file);

  EXPECT_EQ(properties.error, 0);
  EXPECT_EQ(properties.type, PropertyType::File);
  EXPECT_EQ(properties.path, file);
  EXPECT_EQ(properties.size, 12u);
  EXPECT_EQ(properties.accessed, 1000000000);
  EXPECT_EQ(properties.modified, 1100000000);
  EXPECT_EQ(properties.mode, 0640u);
  EXPECT_EQ(properties.owner, getpwuid(geteuid())->pw_name);
  if (properties.created) {
    EXPECT_LE(*properties.created, std::time(nullptr));
  }
}

TEST(FilePropertiesTest, LinkIsShownItselfWithItsTarget) {
  TempFolder temp;
  const std::string file = temp.WriteFile("a.txt", "x");
  const std::string link = temp.Path() + "link";
  ASSERT_EQ(symlink(file.c_str(), link.c_str()), 0);

  const FileProperties properties = PosixFileSystem().Properties(link);

  EXPECT_EQ(properties.type, PropertyType::Link);
  EXPECT_EQ(properties.linkTarget, file);
}

TEST(FilePropertiesTest, FolderIsAFolder) {
  TempFolder temp;
  EXPECT_EQ(PosixFileSystem().Properties(temp.MakeFolder("sub")).type, PropertyType::Folder);
}

TEST(FilePropertiesTest, MissingPathTellsWhy) {
  TempFolder temp;
  const FileProperties properties = PosixFileSystem().Properties(temp.Path() + "missing");
  EXPECT_EQ(properties.type, PropertyType::Missing);
  EXPECT_EQ(properties.error, ENOENT);
}

}  // namespace
}  // namespace nomra::platform
