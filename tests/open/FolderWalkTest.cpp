#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "open/FolderWalk.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::open {
namespace {

class FolderWalkTest : public ::testing::Test {
 protected:
  // The folders in the order they were visited.
  std::vector<std::string> Walk(const std::string& start, bool descend) {
    std::vector<std::string> visited;
    WalkFolders(fileSystem, {start}, descend, [&](std::size_t, const std::string& folder, const auto&) {
      visited.push_back(folder);
      return true;
    });
    return visited;
  }

  testing::TempFolder temp;
  platform::PosixFileSystem fileSystem;
};

TEST_F(FolderWalkTest, NameStartingWithADotIsHidden) {
  EXPECT_TRUE(IsHiddenName(".profile"));
  EXPECT_FALSE(IsHiddenName("a.profile"));
  EXPECT_FALSE(IsHiddenName(""));
}

TEST_F(FolderWalkTest, VisitorGetsTheFolderWithItsSeparatorAndItsFileNames) {
  temp.WriteFile("top/a.txt");
  temp.WriteFile("top/.b");
  temp.MakeFolder("top/sub");
  std::vector<std::string> names;
  std::string seen;
  WalkFolders(fileSystem, {temp.Path() + "top"}, false,
              [&](std::size_t position, const std::string& folder, const std::vector<std::string>& fileNames) {
                EXPECT_EQ(position, 0u);
                seen = folder;
                names = fileNames;
                return true;
              });
  EXPECT_EQ(seen, temp.Path() + "top/");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{".b", "a.txt"}));
}

TEST_F(FolderWalkTest, WithoutDescendingOnlyTheStartIsRead) {
  temp.MakeFolder("top/sub");
  EXPECT_EQ(Walk(temp.Path() + "top", false), (std::vector<std::string>{temp.Path() + "top/"}));
}

TEST_F(FolderWalkTest, EveryLevelComesBeforeTheOneBelow) {
  temp.MakeFolder("top/A/AA");
  temp.MakeFolder("top/B/BB");
  const std::vector<std::string> visited = Walk(temp.Path() + "top", true);
  ASSERT_EQ(visited.size(), 5u);
  EXPECT_EQ(visited[0], temp.Path() + "top/");
  EXPECT_EQ((std::set<std::string>{visited[1], visited[2]}),
            (std::set<std::string>{temp.Path() + "top/A/", temp.Path() + "top/B/"}));
  EXPECT_EQ((std::set<std::string>{visited[3], visited[4]}),
            (std::set<std::string>{temp.Path() + "top/A/AA/", temp.Path() + "top/B/BB/"}));
}

TEST_F(FolderWalkTest, LinkToAFolderIsNotFollowed) {
  temp.MakeFolder("top/sub");
  std::filesystem::create_directory_symlink(temp.Path() + "top", temp.Path() + "top/sub/loop");
  EXPECT_EQ(Walk(temp.Path() + "top", true),
            (std::vector<std::string>{temp.Path() + "top/", temp.Path() + "top/sub/"}));
}

TEST_F(FolderWalkTest, MissingFolderIsPassedOver) {
  temp.MakeFolder("top");
  std::vector<std::string> visited;
  WalkFolders(fileSystem, {temp.Path() + "gone", temp.Path() + "top"}, true,
              [&](std::size_t position, const std::string& folder, const auto&) {
                EXPECT_EQ(position, 1u);
                visited.push_back(folder);
                return true;
              });
  EXPECT_EQ(visited, (std::vector<std::string>{temp.Path() + "top/"}));
}

TEST_F(FolderWalkTest, VisitorCanEndTheWalk) {
  temp.MakeFolder("top/A");
  int visits = 0;
  const bool finished = WalkFolders(fileSystem, {temp.Path() + "top"}, true,
                                    [&](std::size_t, const std::string&, const auto&) { return ++visits > 1; });
  EXPECT_FALSE(finished);
  EXPECT_EQ(visits, 1);
  EXPECT_TRUE(WalkFolders(fileSystem, {temp.Path() + "top"}, true,
                          [](std::size_t, const std::string&, const auto&) { return true; }));
}

}  // namespace
}  // namespace nomra::open
