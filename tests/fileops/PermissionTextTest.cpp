// The permission bits as the properties dialog shows them.
#include <gtest/gtest.h>

#include "fileops/PermissionText.h"

namespace nomra::fileops {
namespace {

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

}  // namespace
}  // namespace nomra::fileops
