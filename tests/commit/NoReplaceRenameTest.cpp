// The platform's rename that never replaces a file, its fallbacks, and the
// check that a rename really happened.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <ostream>

#include "platform/posix/NoReplaceRename.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::testing {
namespace {

using platform::RenameResult;

class NoReplaceRename : public ::testing::Test {
 protected:
  std::string Write(const std::string& name) { return temp.WriteFile(name, "content of " + name); }
  std::string PathOf(const std::string& name) const { return temp.Path() + name; }
  TempFolder temp;
};

// One way of renaming, by name, for the test names.
struct RenameWay {
  const char* name;
  RenameResult (*rename)(const std::string&, const std::string&);
};

void PrintTo(const RenameWay& way, std::ostream* out) { *out << way.name; }

// Each way of renaming must keep the same promise.
class EachRenameWay : public NoReplaceRename, public ::testing::WithParamInterface<RenameWay> {
 protected:
  RenameResult Rename(const std::string& from, const std::string& to) const { return GetParam().rename(from, to); }
};

TEST_P(EachRenameWay, MovesTheFileToAFreeName) {
  const std::string from = Write("a");
  const RenameResult result = Rename(from, PathOf("b"));
  EXPECT_TRUE(result.ok);
  EXPECT_FALSE(Exists(from));
  EXPECT_EQ(ReadWholeFile(PathOf("b")), "content of a");
}

TEST_P(EachRenameWay, TakenNameFailsWithEexistAndBothFilesStay) {
  const std::string from = Write("a");
  const std::string to = Write("b");
  const RenameResult result = Rename(from, to);
  EXPECT_FALSE(result.ok);
  EXPECT_EQ(result.error, EEXIST);
  EXPECT_EQ(ReadWholeFile(from), "content of a");
  EXPECT_EQ(ReadWholeFile(to), "content of b");
}

TEST_P(EachRenameWay, MissingSourceFailsWithEnoent) {
  const RenameResult result = Rename(PathOf("missing"), PathOf("b"));
  EXPECT_FALSE(result.ok);
  EXPECT_EQ(result.error, ENOENT);
  EXPECT_FALSE(Exists(PathOf("b")));
}

TEST_P(EachRenameWay, ChangeOfCaseOnACaseSensitiveVolumeIsAPlainRename) {
  const std::string from = Write("A.TXT");
  const RenameResult result = Rename(from, PathOf("a.txt"));
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(ReadWholeFile(PathOf("a.txt")), "content of A.TXT");
  EXPECT_FALSE(Exists(from));
}

INSTANTIATE_TEST_SUITE_P(Ways, EachRenameWay,
                         ::testing::Values(RenameWay{"Flag", &platform::RenameWithoutReplacing},
                                           RenameWay{"Link", &platform::RenameByLink},
                                           RenameWay{"Lookup", &platform::RenameAfterLookup}),
                         [](const ::testing::TestParamInfo<RenameWay>& info) { return std::string(info.param.name); });

TEST_F(NoReplaceRename, TargetThatIsAFolderIsTaken) {
  const std::string from = Write("a");
  temp.MakeFolder("sub");
  const RenameResult result = platform::RenameWithoutReplacing(from, PathOf("sub"));
  EXPECT_FALSE(result.ok);
  EXPECT_EQ(result.error, EEXIST);
}

TEST_F(NoReplaceRename, PosixFileSystemRenamesWithoutReplacing) {
  platform::PosixFileSystem fileSystem;
  const std::string from = Write("a");
  Write("b");
  EXPECT_EQ(fileSystem.RenameNoReplace(from, PathOf("b")).error, EEXIST);
  EXPECT_TRUE(fileSystem.RenameNoReplace(from, PathOf("c")).ok);
  EXPECT_TRUE(fileSystem.ConfirmRenamed(from, PathOf("c")));
}

TEST_F(NoReplaceRename, ConfirmationHoldsAfterARealRename) {
  const std::string from = Write("a");
  ASSERT_TRUE(platform::RenameWithoutReplacing(from, PathOf("b")).ok);
  EXPECT_TRUE(platform::ConfirmRename(from, PathOf("b")));
}

TEST_F(NoReplaceRename, ConfirmationFailsWhenNothingMoved) {
  const std::string from = Write("a");
  EXPECT_FALSE(platform::ConfirmRename(from, PathOf("b")));
}

TEST_F(NoReplaceRename, ConfirmationFailsWhenTheOldNameStillHoldsAnotherFile) {
  const std::string from = Write("a");
  Write("b");
  EXPECT_FALSE(platform::ConfirmRename(from, PathOf("b")));
}

TEST_F(NoReplaceRename, ConfirmationFailsWhenBothNamesStillReachOneFile) {
  // What a volume without case shows when a change of case did nothing: both
  // spellings reach one file and the listing still holds the old one. Two
  // hard links give the same picture on any volume.
  const std::string from = Write("a");
  ASSERT_EQ(link(from.c_str(), PathOf("A").c_str()), 0);
  EXPECT_FALSE(platform::ConfirmRename(from, PathOf("A")));
}

}  // namespace
}  // namespace nomra::testing
