#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "platform/posix/PosixDataLocations.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::platform {
namespace {

using nomra::testing::TempFolder;

bool IsFolder(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

// Saves the variables the data folder depends on and puts them back when the
// test ends, whatever the test set or removed.
class ScopedEnvironment {
 public:
  ScopedEnvironment() {
    for (const char* name : {"NOMRA_DATA_DIR", "XDG_DATA_HOME", "HOME"}) {
      const char* value = std::getenv(name);
      saved_[name] = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
    }
  }
  ~ScopedEnvironment() {
    for (const auto& [name, value] : saved_) {
      if (value) {
        setenv(name.c_str(), value->c_str(), 1);
      } else {
        unsetenv(name.c_str());
      }
    }
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  void Set(const char* name, const char* value) { setenv(name, value, 1); }
  void Unset(const char* name) { unsetenv(name); }

 private:
  std::map<std::string, std::optional<std::string>> saved_;
};

TEST(PlatformDataLocations, DataDirOverrideWinsAndGetsATrailingSeparator) {
  ScopedEnvironment env;
  env.Set("NOMRA_DATA_DIR", "/srv/nomra-data");
  env.Set("XDG_DATA_HOME", "/xdg/data");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/srv/nomra-data/");
}

TEST(PlatformDataLocations, DataDirOverrideKeepsItsOwnTrailingSeparator) {
  ScopedEnvironment env;
  env.Set("NOMRA_DATA_DIR", "/srv/nomra-data/");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/srv/nomra-data/");
}

TEST(PlatformDataLocations, EmptyDataDirOverrideCountsAsUnset) {
  ScopedEnvironment env;
  env.Set("NOMRA_DATA_DIR", "");
  env.Set("XDG_DATA_HOME", "/xdg/data");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, UsesXdgDataHomeWhenNoOverride) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "/xdg/data");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, XdgDataHomeWithTrailingSeparatorGivesNoDoubleSeparator) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "/xdg/data/");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, IgnoresARelativeXdgDataHome) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "relative/data");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, FallsBackToHomeWhenXdgDataHomeIsUnset) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Unset("XDG_DATA_HOME");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, FallsBackToHomeWhenXdgDataHomeIsEmpty) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "");
  env.Set("HOME", "/home/other");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/home/other/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, HomeWithTrailingSeparatorGivesNoDoubleSeparator) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Unset("XDG_DATA_HOME");
  env.Set("HOME", "/home/someone/");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
  env.Set("HOME", "/");
  EXPECT_EQ(PosixDataLocations().DataFolder(), "/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, ExecutableFolderHoldsTheRunningTest) {
  const std::string folder = PosixDataLocations().ExecutableFolder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.front(), '/');
  EXPECT_EQ(folder.back(), '/');
  EXPECT_TRUE(nomra::testing::Exists(folder + "PlatformTests"));
}

TEST(PlatformDataLocations, MakeFolderPathMakesEveryMissingLevel) {
  TempFolder temp;
  const std::string path = temp.Path() + "one/two/three/";
  EXPECT_EQ(PosixFileSystem().MakeFolderPath(path), 0);
  EXPECT_TRUE(IsFolder(temp.Path() + "one"));
  EXPECT_TRUE(IsFolder(temp.Path() + "one/two"));
  EXPECT_TRUE(IsFolder(path));
}

TEST(PlatformDataLocations, MakeFolderPathWorksWithoutTrailingSeparator) {
  TempFolder temp;
  const std::string path = temp.Path() + "a/b";
  EXPECT_EQ(PosixFileSystem().MakeFolderPath(path), 0);
  EXPECT_TRUE(IsFolder(path));
}

TEST(PlatformDataLocations, MakeFolderPathAcceptsAnExistingFolder) {
  TempFolder temp;
  const std::string path = temp.MakeFolder("already/there");
  temp.WriteFile("already/there/keep.txt", "kept");
  EXPECT_EQ(PosixFileSystem().MakeFolderPath(path), 0);
  EXPECT_EQ(nomra::testing::ReadWholeFile(path + "keep.txt"), "kept");
}

TEST(PlatformDataLocations, MakeFolderPathFailsBelowARegularFile) {
  TempFolder temp;
  const std::string file = temp.WriteFile("blocker", "x");
  EXPECT_EQ(PosixFileSystem().MakeFolderPath(file + "/inner/deeper/"), ENOTDIR);
  EXPECT_FALSE(IsFolder(file + "/inner"));
}

TEST(PlatformDataLocations, MakeFolderPathFailsWhenThePathIsARegularFile) {
  TempFolder temp;
  const std::string file = temp.WriteFile("plain", "x");
  EXPECT_EQ(PosixFileSystem().MakeFolderPath(file), ENOTDIR);
}

}  // namespace
}  // namespace nomra::platform
