#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "settings/CompactIniFile.h"
#include "settings/DataFolder.h"
#include "support/FaultyFileSystem.h"
#include "support/RealFiles.h"
#include "support/ScopedEnvironment.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::Ini;

using nomra::testing::RealFiles;

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;
using nomra::testing::ScopedEnvironment;
using nomra::testing::TempFolder;

// What every reader and writer must do with a data folder that isn't there:
// defaults on read, false on write, no crash.
void ExpectDefaultsAndRefusedWrites(const std::string& dataFolder) {
  const std::string settings = dataFolder + "settings.nrp";
  EXPECT_EQ(Ini(settings).ReadString("Main", "Version"), "");
  EXPECT_EQ(Ini(settings).ReadInt("Main", "Left"), -1);
  EXPECT_FALSE(Ini(settings).Write("Main", "Left", 10L));
  EXPECT_FALSE(Ini(settings).Write("Main", "Name", "x"));
  EXPECT_FALSE(CompactIniFile(RealFiles(), settings, dataFolder));
  EXPECT_EQ(Ini(settings).ReadInt("Main", "Left"), -1);
}

TEST(SettingsDataFolder, FindDataFolderCreatesTheMissingLevels) {
  TempFolder temp;
  ScopedEnvironment dataDir("NOMRA_DATA_DIR", temp.Path() + "deep/er/data");
  const std::string folder = FindDataFolder(RealFiles(), nomra::testing::RealLocations());
  EXPECT_EQ(folder, temp.Path() + "deep/er/data/");
  struct stat st {};
  ASSERT_EQ(stat(folder.c_str(), &st), 0);
  EXPECT_TRUE(S_ISDIR(st.st_mode));
}

TEST(SettingsDataFolder, DataFolderUnderARegularFileGivesDefaultsAndNoWrites) {
  TempFolder temp;
  temp.WriteFile("app/settings.nrp", "[Main]\r\nVersion=1\r\n");
  const auto plain = temp.WriteFile("plain", "x");
  const std::string data = plain + "/data/";
  EXPECT_FALSE(PrepareDataFolder(RealFiles(), temp.Path() + "app/", data));
  ExpectDefaultsAndRefusedWrites(data);
  EXPECT_EQ(ReadWholeFile(plain), "x");
}

TEST(SettingsDataFolder, FindDataFolderUnderARegularFileDoesNotCrash) {
  TempFolder temp;
  const auto plain = temp.WriteFile("plain", "x");
  ScopedEnvironment dataDir("NOMRA_DATA_DIR", plain + "/data");
  const std::string folder = FindDataFolder(RealFiles(), nomra::testing::RealLocations());
  EXPECT_EQ(folder, plain + "/data/");
  ExpectDefaultsAndRefusedWrites(folder);
}

TEST(SettingsDataFolder, DataFolderUnderAReadOnlyParentGivesDefaultsAndNoWrites) {
  TempFolder temp;
  const std::string parent = temp.MakeFolder("locked");
  nomra::testing::FaultyFileSystem files;
  files.MakeFolderReadOnly(parent);
  const std::string data = parent + "data/";
  EXPECT_FALSE(PrepareDataFolder(files, temp.MakeFolder("app"), data));
  EXPECT_GT(files.refused, 0);
  EXPECT_FALSE(Exists(data));
  ExpectDefaultsAndRefusedWrites(data);
}

TEST(SettingsDataFolder, PrepareRunsTheStartUpOrderInAMissingFolder) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  temp.WriteFile("app/structures.nrp", "[Structures]\r\nS1=x\r\n");
  temp.WriteFile("app/settings.nrp", "[Main]\r\nVersion=1\r\n[View]\r\nOld=3\r\n");
  temp.WriteFile("app/update.nrp", "[Main]\r\nVersion=2\r\n[Add]\r\nA1=View|Grid|1\r\n[Del]\r\nD1=View|Old\r\n");
  const std::string data = temp.Path() + "new/data/";

  ASSERT_TRUE(PrepareDataFolder(RealFiles(), app, data));
  EXPECT_EQ(ReadWholeFile(data + "structures.nrp"), "[Structures]\r\nS1=x\r\n");
  EXPECT_EQ(ReadWholeFile(data + "settings.nrp"), "[Main]\r\nVersion=2\r\n\r\n[View]\r\nGrid=1\r\n");
  EXPECT_FALSE(Exists(app + "update.nrp"));
  EXPECT_EQ(ReadWholeFile(app + "settings.nrp"), "[Main]\r\nVersion=1\r\n[View]\r\nOld=3\r\n");
}

TEST(SettingsDataFolder, PrepareCompactsTheSettingsWithoutAnUpdate) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  const auto settings = temp.WriteFile("data/settings.nrp", "[Main]\r\nGone=<<DELETE>>\r\nLeft=1\r\n[View]\r\n");
  ASSERT_TRUE(PrepareDataFolder(RealFiles(), app, temp.Path() + "data/"));
  EXPECT_EQ(ReadWholeFile(settings), "[Main]\r\nLeft=1\r\n\r\n[View]\r\n");
}

TEST(SettingsDataFolder, AppFolderIsTheExecutablesFolderWhenItHoldsLanguageFiles) {
  TempFolder temp;
  temp.WriteFile("bin/English.lng", "");
  temp.MakeFolder("share/nomra");
  EXPECT_EQ(FindAppFolderFrom(RealFiles(), temp.Path() + "bin/"), temp.Path() + "bin/");
}

TEST(SettingsDataFolder, AppFolderIsTheExecutablesFolderWhenItHoldsUpdateInstructions) {
  TempFolder temp;
  temp.WriteFile("bin/update.nrp", "");
  temp.MakeFolder("share/nomra");
  EXPECT_EQ(FindAppFolderFrom(RealFiles(), temp.Path() + "bin"), temp.Path() + "bin/");
}

TEST(SettingsDataFolder, AppFolderIsTheInstalledShareFolderBesideTheExecutable) {
  TempFolder temp;
  temp.WriteFile("bin/nomra", "");
  temp.WriteFile("share/nomra/English.lng", "");
  EXPECT_EQ(FindAppFolderFrom(RealFiles(), temp.Path() + "bin/"), temp.Path() + "share/nomra/");
}

TEST(SettingsDataFolder, AppFolderFallsBackToTheExecutablesFolder) {
  TempFolder temp;
  temp.WriteFile("bin/nomra", "");
  EXPECT_EQ(FindAppFolderFrom(RealFiles(), temp.Path() + "bin/"), temp.Path() + "bin/");
}

TEST(SettingsDataFolder, AppFolderCandidatesAreTheExecutablesFolderThenTheInstalledOne) {
  EXPECT_EQ(AppFolderCandidates("/usr/bin"), (std::vector<std::string>{"/usr/bin/", "/usr/share/nomra/"}));
  EXPECT_EQ(AppFolderCandidates("/opt/nomra/bin/"),
            (std::vector<std::string>{"/opt/nomra/bin/", "/opt/nomra/share/nomra/"}));
}

}  // namespace
}  // namespace nomra::settings
