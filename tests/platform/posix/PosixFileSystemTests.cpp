#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::platform {
namespace {

using nomra::testing::TempFolder;

constexpr long kMsdosMagic = 0x4d44;
constexpr long kExfatMagic = 0x2011BAB0;
constexpr long kCifsMagic = 0xFF534D42;
constexpr long kSmb2Magic = 0xFE534D42;
constexpr long kSmbMagic = 0x517B;

bool OnCaseInsensitiveFileSystemType(const std::string& folder) {
  struct statfs fs {};
  if (statfs(folder.c_str(), &fs) != 0) return false;
  const long type = static_cast<long>(fs.f_type);
  return type == kMsdosMagic || type == kExfatMagic || type == kCifsMagic || type == kSmb2Magic || type == kSmbMagic;
}

void SetModified(const std::string& path, std::time_t when) {
  const timespec times[2] = {{when, 0}, {when, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0) << path;
}

std::map<std::string, std::vector<EntryKind>> ListAll(PosixFileSystem& fs, const std::string& folder, bool* ok) {
  std::map<std::string, std::vector<EntryKind>> seen;
  *ok = fs.ListFolder(folder, [&](std::string_view name, EntryKind kind) { seen[std::string(name)].push_back(kind); });
  return seen;
}

// ---- Lexical normalisation ----

TEST(PlatformNormalizePath, ResolvesDotAndDotDotAgainstTheWorkingFolder) {
  EXPECT_EQ(NormalizeAbsolutePath("a/./b/../c", "/work"), "/work/a/c");
}

TEST(PlatformNormalizePath, DotDotAboveTheRootStaysAtTheRoot) {
  EXPECT_EQ(NormalizeAbsolutePath("/..", "/work"), "/");
  EXPECT_EQ(NormalizeAbsolutePath("/../../x", "/work"), "/x");
  EXPECT_EQ(NormalizeAbsolutePath("../../../..", "/work"), "/");
}

TEST(PlatformNormalizePath, AbsolutePathIgnoresTheWorkingFolder) {
  EXPECT_EQ(NormalizeAbsolutePath("/a/b", "/work"), "/a/b");
  EXPECT_EQ(NormalizeAbsolutePath("/a/b/..", "/work"), "/a");
  EXPECT_EQ(NormalizeAbsolutePath("/", "/work"), "/");
}

TEST(PlatformNormalizePath, KeepsTheTrailingSeparatorOfAFolder) {
  EXPECT_EQ(NormalizeAbsolutePath("/a/b/", "/work"), "/a/b/");
  EXPECT_EQ(NormalizeAbsolutePath("sub/", "/work"), "/work/sub/");
  EXPECT_EQ(NormalizeAbsolutePath("sub/x/../", "/work"), "/work/sub/");
  EXPECT_EQ(NormalizeAbsolutePath("./", "/work"), "/work/");
}

TEST(PlatformNormalizePath, DropsEmptyParts) {
  EXPECT_EQ(NormalizeAbsolutePath("//a///b", "/work"), "/a/b");
  EXPECT_EQ(NormalizeAbsolutePath("a", "/work/"), "/work/a");
}

TEST(PlatformNormalizePath, DotAloneIsTheWorkingFolder) {
  EXPECT_EQ(NormalizeAbsolutePath(".", "/work/sub"), "/work/sub");
  EXPECT_EQ(NormalizeAbsolutePath("..", "/work/sub"), "/work");
}

TEST(PlatformNormalizePath, KeepsNamesThatOnlyStartWithDots) {
  EXPECT_EQ(NormalizeAbsolutePath("/a/.hidden/...", "/"), "/a/.hidden/...");
  EXPECT_EQ(NormalizeAbsolutePath("..x/.y", "/w"), "/w/..x/.y");
}

TEST(PlatformFileSystem, AbsolutePathOfARelativePathStartsAtTheWorkingFolder) {
  PosixFileSystem fs;
  const std::string cwd = std::filesystem::current_path().string();
  EXPECT_EQ(fs.AbsolutePath("some/./name"), NormalizeAbsolutePath("some/name", cwd));
  EXPECT_EQ(fs.AbsolutePath("some/name"), (cwd == "/" ? "" : cwd) + "/some/name");
  EXPECT_EQ(fs.AbsolutePath("/x/y/../z"), "/x/z");
}

// ---- Status ----

TEST(PlatformFileSystem, StatusOfAFileGivesKindSizeAndModifiedTime) {
  TempFolder temp;
  const std::string file = temp.WriteFile("data.bin", "12345");
  SetModified(file, 1234567890);
  PosixFileSystem fs;
  const FileStatus status = fs.Status(file);
  EXPECT_EQ(status.kind, EntryKind::File);
  EXPECT_EQ(status.size, 5u);
  ASSERT_TRUE(status.modified.has_value());
  EXPECT_EQ(*status.modified, 1234567890);
  EXPECT_EQ(status.error, 0);
}

TEST(PlatformFileSystem, StatusOfAnEmptyFileHasSizeZero) {
  TempFolder temp;
  PosixFileSystem fs;
  const FileStatus status = fs.Status(temp.WriteFile("empty"));
  EXPECT_EQ(status.kind, EntryKind::File);
  EXPECT_EQ(status.size, 0u);
}

TEST(PlatformFileSystem, StatusOfAFolderIsFolder) {
  TempFolder temp;
  PosixFileSystem fs;
  const std::string folder = temp.MakeFolder("sub");
  SetModified(folder, 1000000000);
  const FileStatus status = fs.Status(folder);
  EXPECT_EQ(status.kind, EntryKind::Folder);
  ASSERT_TRUE(status.modified.has_value());
  EXPECT_EQ(*status.modified, 1000000000);
  EXPECT_EQ(status.error, 0);
}

TEST(PlatformFileSystem, StatusOfAMissingPathIsMissingWithNoSuchEntry) {
  TempFolder temp;
  PosixFileSystem fs;
  const FileStatus status = fs.Status(temp.Path() + "not-there.txt");
  EXPECT_EQ(status.kind, EntryKind::Missing);
  EXPECT_EQ(status.error, ENOENT);
  EXPECT_FALSE(status.modified.has_value());
}

TEST(PlatformFileSystem, StatusBelowAFileReportsNotAFolder) {
  TempFolder temp;
  PosixFileSystem fs;
  const std::string file = temp.WriteFile("plain.txt", "x");
  const FileStatus status = fs.Status(file + "/inside");
  EXPECT_EQ(status.kind, EntryKind::Missing);
  EXPECT_EQ(status.error, ENOTDIR);
}

TEST(PlatformFileSystem, StatusFollowsALinkToAFile) {
  TempFolder temp;
  const std::string target = temp.WriteFile("target.txt", "abcdefgh");
  SetModified(target, 1500000000);
  const std::string link = temp.Path() + "link.txt";
  ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
  PosixFileSystem fs;
  const FileStatus status = fs.Status(link);
  EXPECT_EQ(status.kind, EntryKind::File);
  EXPECT_EQ(status.size, 8u);
  ASSERT_TRUE(status.modified.has_value());
  EXPECT_EQ(*status.modified, 1500000000);
}

TEST(PlatformFileSystem, StatusFollowsALinkToAFolder) {
  TempFolder temp;
  const std::string target = temp.MakeFolder("real");
  const std::string link = temp.Path() + "alias";
  ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
  PosixFileSystem fs;
  EXPECT_EQ(fs.Status(link).kind, EntryKind::Folder);
}

TEST(PlatformFileSystem, StatusOfADanglingLinkIsMissing) {
  TempFolder temp;
  const std::string link = temp.Path() + "dangling";
  ASSERT_EQ(symlink((temp.Path() + "gone").c_str(), link.c_str()), 0);
  PosixFileSystem fs;
  const FileStatus status = fs.Status(link);
  EXPECT_EQ(status.kind, EntryKind::Missing);
  EXPECT_EQ(status.error, ENOENT);
}

TEST(PlatformFileSystem, StatusOfAPipeIsOther) {
  TempFolder temp;
  const std::string pipe = temp.Path() + "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  PosixFileSystem fs;
  EXPECT_EQ(fs.Status(pipe).kind, EntryKind::Other);
}

// ---- Listing ----

TEST(PlatformFileSystem, ListFolderVisitsEveryEntryOnceWithItsKind) {
  TempFolder temp;
  temp.WriteFile("a.txt", "a");
  temp.WriteFile(".hidden", "h");
  temp.WriteFile("sub/inner.txt", "not listed: one level only");
  temp.MakeFolder(".hidden-folder");
  ASSERT_EQ(symlink((temp.Path() + "sub").c_str(), (temp.Path() + "sub-link").c_str()), 0);
  ASSERT_EQ(symlink((temp.Path() + "a.txt").c_str(), (temp.Path() + "file-link").c_str()), 0);
  ASSERT_EQ(symlink((temp.Path() + "nowhere").c_str(), (temp.Path() + "dangling").c_str()), 0);
  ASSERT_EQ(mkfifo((temp.Path() + "pipe").c_str(), 0600), 0);

  PosixFileSystem fs;
  bool ok = false;
  const auto seen = ListAll(fs, temp.Path(), &ok);
  EXPECT_TRUE(ok);
  const std::map<std::string, std::vector<EntryKind>> expected = {
      {"a.txt", {EntryKind::File}},          {".hidden", {EntryKind::File}},
      {"sub", {EntryKind::Folder}},          {".hidden-folder", {EntryKind::Folder}},
      {"sub-link", {EntryKind::FolderLink}}, {"file-link", {EntryKind::File}},
      {"dangling", {EntryKind::Other}},      {"pipe", {EntryKind::Other}},
  };
  EXPECT_EQ(seen, expected);
}

TEST(PlatformFileSystem, ListFolderWorksWithoutTrailingSeparator) {
  TempFolder temp;
  temp.WriteFile("x/one", "1");
  temp.WriteFile("x/two", "2");
  PosixFileSystem fs;
  bool ok = false;
  const auto seen = ListAll(fs, temp.Path() + "x", &ok);
  EXPECT_TRUE(ok);
  const std::map<std::string, std::vector<EntryKind>> expected = {{"one", {EntryKind::File}},
                                                                  {"two", {EntryKind::File}}};
  EXPECT_EQ(seen, expected);
}

TEST(PlatformFileSystem, ListFolderOfAnEmptyFolderVisitsNothing) {
  TempFolder temp;
  PosixFileSystem fs;
  bool ok = false;
  const auto seen = ListAll(fs, temp.MakeFolder("empty"), &ok);
  EXPECT_TRUE(ok);
  EXPECT_TRUE(seen.empty());
}

TEST(PlatformFileSystem, ListFolderOfAMissingFolderFails) {
  TempFolder temp;
  PosixFileSystem fs;
  int visits = 0;
  EXPECT_FALSE(fs.ListFolder(temp.Path() + "missing/", [&](std::string_view, EntryKind) { ++visits; }));
  EXPECT_EQ(visits, 0);
}

TEST(PlatformFileSystem, ListFolderOfAFileFails) {
  TempFolder temp;
  PosixFileSystem fs;
  int visits = 0;
  EXPECT_FALSE(fs.ListFolder(temp.WriteFile("f.txt", "x"), [&](std::string_view, EntryKind) { ++visits; }));
  EXPECT_EQ(visits, 0);
}

TEST(PlatformFileSystem, ListFolderKeepsNamesThatAreNotUtf8) {
  TempFolder temp;
  const std::string name = "bad\xE9name";
  temp.WriteFile(name, "x");
  PosixFileSystem fs;
  bool ok = false;
  const auto seen = ListAll(fs, temp.Path(), &ok);
  EXPECT_TRUE(ok);
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen.begin()->first, name);
}

// ---- Case rule of a folder ----

TEST(PlatformFileSystem, TempFolderIsCaseSensitive) {
  TempFolder temp;
  if (OnCaseInsensitiveFileSystemType(temp.Path())) {
    GTEST_SKIP() << "the temporary folder is on a FAT, exFAT or SMB file system";
  }
  temp.WriteFile("Name.txt", "x");
  PosixFileSystem fs;
  EXPECT_FALSE(ProbeCaseInsensitiveFolder(temp.Path()));
  EXPECT_FALSE(fs.IsCaseInsensitiveFolder(temp.Path()));
  // Cross-check with the file system itself: the other case is another name.
  EXPECT_FALSE(nomra::testing::Exists(temp.Path() + "NAME.TXT"));
}

TEST(PlatformFileSystem, ProbeOfAMissingFolderSaysCaseSensitive) {
  TempFolder temp;
  EXPECT_FALSE(ProbeCaseInsensitiveFolder(temp.Path() + "missing/"));
}

// Mount points of file systems that ignore case, readable by this user.
std::optional<std::string> FindCaseInsensitiveMount() {
  std::ifstream mounts("/proc/self/mounts");
  std::string line;
  while (std::getline(mounts, line)) {
    std::istringstream fields(line);
    std::string device;
    std::string mountPoint;
    std::string type;
    fields >> device >> mountPoint >> type;
    if (type != "vfat" && type != "msdos" && type != "exfat" && type != "cifs" && type != "smb3") continue;
    if (mountPoint.find('\\') != std::string::npos) continue;  // escaped blanks: not worth decoding
    if (access(mountPoint.c_str(), R_OK | X_OK) == 0 && OnCaseInsensitiveFileSystemType(mountPoint)) {
      return mountPoint + "/";
    }
  }
  return std::nullopt;
}

TEST(PlatformFileSystem, CaseRuleIsRememberedPerFolder) {
  TempFolder temp;
  if (OnCaseInsensitiveFileSystemType(temp.Path())) {
    GTEST_SKIP() << "the temporary folder is on a FAT, exFAT or SMB file system";
  }
  const std::optional<std::string> insensitive = FindCaseInsensitiveMount();
  if (!insensitive) {
    GTEST_SKIP() << "no FAT, exFAT or SMB mount is readable here, so no folder's case rule can change";
  }
  // The same folder text first leads to a case-sensitive folder, then, once
  // the link is turned, to a case-insensitive one: the first answer stays.
  const std::string link = temp.Path() + "where";
  ASSERT_EQ(symlink(temp.Path().c_str(), link.c_str()), 0);
  PosixFileSystem fs;
  EXPECT_FALSE(fs.IsCaseInsensitiveFolder(link));
  ASSERT_EQ(unlink(link.c_str()), 0);
  ASSERT_EQ(symlink(insensitive->c_str(), link.c_str()), 0);
  ASSERT_TRUE(ProbeCaseInsensitiveFolder(link)) << *insensitive;
  EXPECT_FALSE(fs.IsCaseInsensitiveFolder(link));

  PosixFileSystem fresh;
  EXPECT_TRUE(fresh.IsCaseInsensitiveFolder(link));
}

}  // namespace
}  // namespace nomra::platform

namespace nomra::platform {
namespace {

// Renames are looked up afterwards on every volume not on the trusted list.
TEST(PlatformRenameTrust, PseudoFileSystemIsNotTrusted) { EXPECT_FALSE(KernelRenameIsTrusted("/proc/")); }

TEST(PlatformRenameTrust, FolderThatIsMissingIsNotTrusted) {
  EXPECT_FALSE(KernelRenameIsTrusted("/no/such/folder/anywhere/"));
}

// The system reads a path only up to a NUL; such a path must not name the
// file or folder in front of the NUL.
TEST(PlatformFileSystem, PathHoldingANulNamesNothing) {
  TempFolder folder;
  const std::string file = folder.WriteFile("a.txt", "x");
  PosixFileSystem fileSystem;
  const std::string withNul = file + std::string(1, '\0') + "more";
  EXPECT_NE(fileSystem.Status(withNul).error, 0);
  const std::string folderWithNul = folder.Path() + std::string(1, '\0');
  int visited = 0;
  EXPECT_FALSE(fileSystem.ListFolder(folderWithNul, [&](std::string_view, EntryKind) { ++visited; }));
  EXPECT_EQ(visited, 0);
  EXPECT_FALSE(fileSystem.RenameNoReplace(withNul, folder.Path() + "b.txt").ok);
  EXPECT_TRUE(fileSystem.Status(file).error == 0) << "the real file stays where it was";
}

}  // namespace
}  // namespace nomra::platform
