// The look-up by flipped case that decides the case rule of folders whose
// volume type doesn't tell. The temporary folder keeps case, so these tests
// check the answers of a case-sensitive volume and the same-inode rule; the
// answers of a FUSE volume that ignores case are checked on a FAT volume
// with the commit tests.
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "platform/posix/CaseLookup.h"
#include "support/TempFolder.h"

namespace nomra::platform {
namespace {

using nomra::testing::Exists;
using nomra::testing::TempFolder;

// A temporary folder on a volume without case would make every answer here true.
bool TempFolderKeepsCase(const TempFolder& temp) {
  temp.WriteFile("keep-case-probe", "x");
  const bool keeps = !Exists(temp.Path() + "KEEP-CASE-PROBE");
  unlink((temp.Path() + "keep-case-probe").c_str());
  return keeps;
}

TEST(PlatformCaseLookup, TwoSpellingsListedSideBySideAreTwoEntries) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  temp.WriteFile("Name.txt", "one");
  temp.WriteFile("NAME.TXT", "two");
  EXPECT_FALSE(FlippedSpellingFindsTheSameEntry(temp.Path(), "Name.txt"));
  EXPECT_FALSE(LookupIgnoresCase(temp.Path()));
}

TEST(PlatformCaseLookup, AnotherSpellingThatReachesNothingMeansCaseCounts) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  temp.WriteFile("Name.txt", "one");
  EXPECT_FALSE(FlippedSpellingFindsTheSameEntry(temp.Path(), "Name.txt"));
}

TEST(PlatformCaseLookup, TheSameInodeUnderTheOtherSpellingMeansCaseIsIgnored) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  // A hard link stands in for a volume that finds the one file under both spellings.
  const std::string original = temp.WriteFile("name.txt", "one");
  ASSERT_EQ(link(original.c_str(), (temp.Path() + "NAME.TXT").c_str()), 0);
  EXPECT_TRUE(FlippedSpellingFindsTheSameEntry(temp.Path(), "name.txt"));
  EXPECT_TRUE(LookupIgnoresCase(temp.Path()));
}

TEST(PlatformCaseLookup, NamesWithoutCaseArePassedOverForOneThatHasIt) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  for (const char* name : {"123", "4-5", "_6_", "7.8", "9"}) temp.WriteFile(name, "x");
  const std::string original = temp.WriteFile("name", "one");
  ASSERT_EQ(link(original.c_str(), (temp.Path() + "NAME").c_str()), 0);
  EXPECT_FALSE(FlippedSpellingFindsTheSameEntry(temp.Path(), "123"));
  EXPECT_TRUE(LookupIgnoresCase(temp.Path()));
}

TEST(PlatformCaseLookup, AnEmptyFolderIsJudgedByItsOwnNameWithinItsParent) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  const std::string empty = temp.MakeFolder("box");
  // The other spelling of the folder's name is another entry of the parent.
  temp.WriteFile("BOX", "a file of its own");
  EXPECT_FALSE(LookupIgnoresCase(empty));
}

TEST(PlatformCaseLookup, AnEmptyFolderReachedByALinkIsJudgedByItsOwnNameNotTheLinks) {
  TempFolder temp;
  if (!TempFolderKeepsCase(temp)) GTEST_SKIP() << "the temporary folder ignores case";
  const std::string empty = temp.MakeFolder("box");
  const std::string link = temp.Path() + "link";
  ASSERT_EQ(symlink(empty.c_str(), link.c_str()), 0);
  // The link's name would find itself under the other spelling (a hard link
  // to the link itself); the folder's own name finds nothing.
  ASSERT_EQ(::link(link.c_str(), (temp.Path() + "LINK").c_str()), 0);
  ASSERT_TRUE(FlippedSpellingFindsTheSameEntry(temp.Path(), "link"));
  EXPECT_FALSE(LookupIgnoresCase(link));
}

TEST(PlatformCaseLookup, AFolderWithNoNameToFlipKeepsCase) {
  TempFolder temp;
  const std::string empty = temp.MakeFolder("123");
  EXPECT_FALSE(LookupIgnoresCase(empty));
  EXPECT_FALSE(LookupIgnoresCase(temp.Path() + "missing/"));
}

}  // namespace
}  // namespace nomra::platform
