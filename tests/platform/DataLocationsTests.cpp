#include "platform/DataLocations.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

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
  EXPECT_EQ(DefaultDataFolder(), "/srv/nomra-data/");
}

TEST(PlatformDataLocations, DataDirOverrideKeepsItsOwnTrailingSeparator) {
  ScopedEnvironment env;
  env.Set("NOMRA_DATA_DIR", "/srv/nomra-data/");
  EXPECT_EQ(DefaultDataFolder(), "/srv/nomra-data/");
}

TEST(PlatformDataLocations, EmptyDataDirOverrideCountsAsUnset) {
  ScopedEnvironment env;
  env.Set("NOMRA_DATA_DIR", "");
  env.Set("XDG_DATA_HOME", "/xdg/data");
  EXPECT_EQ(DefaultDataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, UsesXdgDataHomeWhenNoOverride) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "/xdg/data");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(DefaultDataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, XdgDataHomeWithTrailingSeparatorGivesNoDoubleSeparator) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "/xdg/data/");
  EXPECT_EQ(DefaultDataFolder(), "/xdg/data/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, IgnoresARelativeXdgDataHome) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "relative/data");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(DefaultDataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, FallsBackToHomeWhenXdgDataHomeIsUnset) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Unset("XDG_DATA_HOME");
  env.Set("HOME", "/home/someone");
  EXPECT_EQ(DefaultDataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, FallsBackToHomeWhenXdgDataHomeIsEmpty) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Set("XDG_DATA_HOME", "");
  env.Set("HOME", "/home/other");
  EXPECT_EQ(DefaultDataFolder(), "/home/other/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, HomeWithTrailingSeparatorGivesNoDoubleSeparator) {
  ScopedEnvironment env;
  env.Unset("NOMRA_DATA_DIR");
  env.Unset("XDG_DATA_HOME");
  env.Set("HOME", "/home/someone/");
  EXPECT_EQ(DefaultDataFolder(), "/home/someone/.local/share/NR-Software/Nomra/");
  env.Set("HOME", "/");
  EXPECT_EQ(DefaultDataFolder(), "/.local/share/NR-Software/Nomra/");
}

TEST(PlatformDataLocations, ExecutableFolderHoldsTheRunningTest) {
  const std::string folder = ExecutableFolder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.front(), '/');
  EXPECT_EQ(folder.back(), '/');
  EXPECT_TRUE(nomra::testing::Exists(folder + "PlatformTests"));
}

TEST(PlatformDataLocations, CreateFolderPathMakesEveryMissingLevel) {
  TempFolder temp;
  const std::string path = temp.Path() + "one/two/three/";
  EXPECT_TRUE(CreateFolderPath(path));
  EXPECT_TRUE(IsFolder(temp.Path() + "one"));
  EXPECT_TRUE(IsFolder(temp.Path() + "one/two"));
  EXPECT_TRUE(IsFolder(path));
}

TEST(PlatformDataLocations, CreateFolderPathWorksWithoutTrailingSeparator) {
  TempFolder temp;
  const std::string path = temp.Path() + "a/b";
  EXPECT_TRUE(CreateFolderPath(path));
  EXPECT_TRUE(IsFolder(path));
}

TEST(PlatformDataLocations, CreateFolderPathAcceptsAnExistingFolder) {
  TempFolder temp;
  const std::string path = temp.MakeFolder("already/there");
  temp.WriteFile("already/there/keep.txt", "kept");
  EXPECT_TRUE(CreateFolderPath(path));
  EXPECT_EQ(nomra::testing::ReadWholeFile(path + "keep.txt"), "kept");
}

TEST(PlatformDataLocations, CreateFolderPathFailsBelowARegularFile) {
  TempFolder temp;
  const std::string file = temp.WriteFile("blocker", "x");
  EXPECT_FALSE(CreateFolderPath(file + "/inner/deeper/"));
  EXPECT_FALSE(IsFolder(file + "/inner"));
}

TEST(PlatformDataLocations, CreateFolderPathFailsWhenThePathIsARegularFile) {
  TempFolder temp;
  const std::string file = temp.WriteFile("plain", "x");
  EXPECT_FALSE(CreateFolderPath(file));
}

}  // namespace
}  // namespace nomra::platform
