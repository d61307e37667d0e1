// The working sets of a commit compare paths by the case rule of their folder.
#include <gtest/gtest.h>

#include <map>

#include "commit/CommitSets.h"
#include "support/ForwardingFileSystem.h"

namespace nomra::testing {
namespace {

// Folders named ".../fat/" ignore case; every question is counted.
class CountingCaseRules final : public ForwardingFileSystem {
 public:
  bool IsCaseInsensitiveFolder(const std::string& folder) override {
    ++asked[folder];
    return folder.ends_with("/fat/");
  }
  std::map<std::string, int> asked;
};

class CommitSets : public ::testing::Test {
 protected:
  CountingCaseRules rules;
  commit::PathKeys keys{rules};
};

TEST_F(CommitSets, PathsInAFolderWithoutCaseMatchInAnyCase) {
  commit::PathMap map(keys);
  map.Set("/media/fat/Photo.JPG", "row");
  ASSERT_NE(map.Find("/media/fat/photo.jpg"), nullptr);
  EXPECT_EQ(*map.Find("/media/fat/PHOTO.jpg"), "row");
}

TEST_F(CommitSets, PathsInACaseSensitiveFolderMatchOnlyExactly) {
  commit::PathMap map(keys);
  map.Set("/home/u/Photo.JPG", "row");
  EXPECT_TRUE(map.Contains("/home/u/Photo.JPG"));
  EXPECT_FALSE(map.Contains("/home/u/photo.jpg"));
}

TEST_F(CommitSets, SettingAPathThatIsThereReplacesItsValue) {
  commit::PathMap map(keys);
  map.Set("/media/fat/a", "first");
  map.Set("/media/fat/A", "second");
  EXPECT_EQ(*map.Find("/media/fat/a"), "second");
}

TEST_F(CommitSets, EachFolderIsAskedOnce) {
  commit::PathMap map(keys);
  for (int i = 0; i < 5; ++i) map.Set("/media/fat/" + std::to_string(i), "x");
  map.Contains("/home/u/a");
  map.Contains("/home/u/b");
  EXPECT_EQ(rules.asked["/media/fat/"], 1);
  EXPECT_EQ(rules.asked["/home/u/"], 1);
}

TEST_F(CommitSets, OrderedMapKeepsTheOrderOfFirstInsertion) {
  commit::OrderedPathMap map(keys);
  map.Set("/home/u/c", "c");
  map.Set("/home/u/a", "a");
  map.Set("/home/u/b", "b");
  map.Set("/home/u/c", "c again");
  std::vector<std::string> values;
  map.ForEach([&](const std::string& value) { values.push_back(value); });
  EXPECT_EQ(values, (std::vector<std::string>{"c again", "a", "b"}));
  EXPECT_EQ(map.LastValue(), "b");
  EXPECT_EQ(map.Size(), 3u);
}

TEST_F(CommitSets, OrderedMapErasesByAnySpellingWhereCaseIsIgnored) {
  commit::OrderedPathMap map(keys);
  map.Set("/media/fat/One", "/media/fat/One");
  map.Set("/media/fat/Two", "/media/fat/Two");
  EXPECT_TRUE(map.Erase("/media/fat/TWO"));
  EXPECT_FALSE(map.Erase("/media/fat/two"));
  EXPECT_EQ(map.LastValue(), "/media/fat/One");
  EXPECT_TRUE(map.Erase("/media/fat/one"));
  EXPECT_TRUE(map.Empty());
}

}  // namespace
}  // namespace nomra::testing
