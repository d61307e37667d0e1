// Real permission bits against the POSIX file system: the refusals that the
// rest of the tests inject through a faulty file system are the ones the
// kernel gives. Root runs them as the "nobody" user.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"
#include "support/Unprivileged.h"

namespace nomra::platform {
namespace {

using nomra::testing::AsUserWithoutPrivileges;
using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

constexpr const char* kNoUserToBecome = "root may not become the nobody user here, so permission bits can't be tried";

// The answer of the work: 0 when every step went as expected, else the
// number of the first step that did not.
#define EXPECT_STEPS_HELD(answer)                           \
  do {                                                      \
    const std::optional<int> steps = (answer);              \
    if (!steps) GTEST_SKIP() << kNoUserToBecome;            \
    EXPECT_EQ(*steps, 0) << "step " << *steps << " failed"; \
  } while (false)

TEST(PlatformPermissions, FolderWithoutPermissionsCannotBeListed) {
  TempFolder temp;
  temp.WriteFile("open/a.txt");
  temp.WriteFile("closed/b.txt");
  const std::string open = temp.Path() + "open/";
  const std::string closed = temp.Path() + "closed/";
  EXPECT_STEPS_HELD(AsUserWithoutPrivileges(temp.Path(), [&] {
    ::chmod(closed.c_str(), 0);
    PosixFileSystem files;
    int seen = 0;
    if (!files.ListFolder(open, [&](std::string_view, EntryKind) { ++seen; }) || seen != 1) return 1;
    if (files.ListFolder(closed, [&](std::string_view, EntryKind) { ++seen; })) return 2;
    if (seen != 1) return 3;
    return 0;
  }));
}

TEST(PlatformPermissions, UnreadableFileGivesPermissionDenied) {
  TempFolder temp;
  const std::string file = temp.WriteFile("s.nrp", "[Main]\r\n");
  EXPECT_STEPS_HELD(AsUserWithoutPrivileges(temp.Path(), [&] {
    ::chmod(file.c_str(), 0200);
    PosixFileSystem files;
    int error = 0;
    if (files.ReadFile(file, error)) return 1;
    if (error != EACCES) return 2;
    return 0;
  }));
}

TEST(PlatformPermissions, ReadOnlyFileIsNotReplacedAndStaysAsItWas) {
  TempFolder temp;
  const std::string file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  EXPECT_STEPS_HELD(AsUserWithoutPrivileges(temp.Path(), [&] {
    ::chmod(file.c_str(), 0444);
    PosixFileSystem files;
    if (files.MayWriteFile(file)) return 1;
    if (files.ReplaceFile(file, "[Main]\r\nA=2\r\n") != EACCES) return 2;
    return 0;
  }));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n");
}

TEST(PlatformPermissions, NothingIsMadeOrRemovedInAReadOnlyFolder) {
  TempFolder temp;
  const std::string kept = temp.WriteFile("locked/kept.txt", "kept");
  const std::string folder = temp.Path() + "locked/";
  EXPECT_STEPS_HELD(AsUserWithoutPrivileges(temp.Path(), [&] {
    ::chmod(folder.c_str(), 0555);
    PosixFileSystem files;
    if (files.MayWriteInFolder(folder)) return 1;
    if (files.MakeFolder(folder + "new", 0755) != EACCES) return 2;
    if (files.WriteNewFile(folder + "new.txt", "x") != EACCES) return 3;
    if (files.RemoveFile(kept) != EACCES) return 4;
    if (files.ReplaceFile(kept, "changed") == 0) return 5;
    return 0;
  }));
  EXPECT_EQ(ReadWholeFile(kept), "kept");
  EXPECT_FALSE(nomra::testing::Exists(folder + "new"));
  EXPECT_FALSE(nomra::testing::Exists(folder + "new.txt"));
}

}  // namespace
}  // namespace nomra::platform
