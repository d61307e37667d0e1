// What the properties dialog shows of a file.
#include <gtest/gtest.h>
#include <pwd.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "fileops/FileProperties.h"
#include "support/TempFolder.h"

namespace nomra::fileops {
namespace {

using nomra::testing::TempFolder;

TEST(PermissionTextTest, ReadsAsAListingShowsIt) {
  EXPECT_EQ(PermissionText(0644), "rw-r--r--");
  EXPECT_EQ(PermissionText(0750), "rwxr-x---");
  EXPECT_EQ(PermissionText(0000), "---------");
}

TEST(PermissionTextTest, SpecialBitsTakeTheExecutePlace) {
  EXPECT_EQ(PermissionText(04755), "rwsr-xr-x");
  EXPECT_EQ(PermissionText(02640), "rw-r-S---");
  EXPECT_EQ(PermissionText(01777), "rwxrwxrwt");
  EXPECT_EQ(PermissionText(01776), "rwxrwxrwT");
}

TEST(FilePropertiesTest, FileShowsItsSizeTimesOwnerAndPermissions) {
  TempFolder temp;
  const std::string file = temp.WriteFile("a.txt", "twelve bytes");
  chmod(file.c_str(), 0640);
  const struct timespec times[2] = {{1000000000, 0}, {1100000000, 0}};
  utimensat(AT_FDCWD, file.c_str(), times, 0);

  const FileProperties properties = ReadFileProperties(file);

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

  const FileProperties properties = ReadFileProperties(link);

  EXPECT_EQ(properties.type, PropertyType::Link);
  EXPECT_EQ(properties.linkTarget, file);
}

TEST(FilePropertiesTest, FolderIsAFolder) {
  TempFolder temp;
  EXPECT_EQ(ReadFileProperties(temp.MakeFolder("sub")).type, PropertyType::Folder);
}

TEST(FilePropertiesTest, MissingPathTellsWhy) {
  TempFolder temp;
  const FileProperties properties = ReadFileProperties(temp.Path() + "missing");
  EXPECT_EQ(properties.type, PropertyType::Missing);
  EXPECT_EQ(properties.error, ENOENT);
}

}  // namespace
}  // namespace nomra::fileops
