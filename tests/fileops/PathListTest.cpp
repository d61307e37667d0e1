#include <gtest/gtest.h>

#include <string>

#include "fileops/PathList.h"
#include "fileops/ShellOperation.h"

namespace nomra::fileops {
namespace {

using namespace std::string_literals;

TEST(PathListTest, EachPathEndsWithNulAndTheListWithOneMore) {
  EXPECT_EQ(JoinPathList({"/a/x", "/b/y"}), "/a/x\0/b/y\0\0"s);
}

TEST(PathListTest, EmptyArrayGivesAListWithNoPath) {
  EXPECT_EQ(JoinPathList({}), "\0"s);
  EXPECT_TRUE(SplitPathList(JoinPathList({})).empty());
}

TEST(PathListTest, EndPathListKeepsTwoNuls) { EXPECT_EQ(EndPathList("/a\0\0"s), "/a\0\0"s); }

TEST(PathListTest, EndPathListAddsOneToOneNul) { EXPECT_EQ(EndPathList("/a\0"s), "/a\0\0"s); }

TEST(PathListTest, EndPathListAddsTwoWhereThereIsNone) { EXPECT_EQ(EndPathList("/a"), "/a\0\0"s); }

TEST(PathListTest, SplitGivesThePathsBackInOrder) {
  const std::vector<std::string> paths = {"/x/ä b", "/y/c.txt", "/z"};
  EXPECT_EQ(SplitPathList(JoinPathList(paths)), paths);
}

TEST(PathListTest, TheDoubleNulEndsTheList) {
  EXPECT_EQ(SplitPathList("/a\0\0/b\0\0"s), std::vector<std::string>{"/a"});
}

TEST(ShellFlagsTest, OneTargetLeavesMultipleTargetsOff) {
  EXPECT_EQ(TransferFlags(JoinPathList({"/a/x"}), JoinPathList({"/b/x"}), false) & FOF_MULTIDESTFILES, 0);
}

TEST(ShellFlagsTest, SeveralTargetsTurnMultipleTargetsOn) {
  const std::uint16_t flags = TransferFlags(JoinPathList({"/a/x", "/a/y"}), JoinPathList({"/b/x", "/b/y"}), false);
  EXPECT_EQ(flags, FOF_MULTIDESTFILES);
}

TEST(ShellFlagsTest, WildcardSourceAddsFilesOnly) {
  EXPECT_EQ(TransferFlags(JoinPathList({"/a/*.jpg"}), JoinPathList({"/b"}), false), FOF_FILESONLY);
}

TEST(ShellFlagsTest, RenameOnCollisionAsksForTheMappingsToo) {
  EXPECT_EQ(TransferFlags(JoinPathList({"/a/x"}), JoinPathList({"/b/x"}), true),
            FOF_RENAMEONCOLLISION | FOF_WANTMAPPINGHANDLE);
}

TEST(ShellFlagsTest, DeleteToTheTrashWithQuestion) { EXPECT_EQ(DeleteFlags(true, true), FOF_ALLOWUNDO); }

TEST(ShellFlagsTest, DeleteWithoutQuestionAtOnce) { EXPECT_EQ(DeleteFlags(false, false), FOF_NOCONFIRMATION); }

}  // namespace
}  // namespace nomra::fileops
