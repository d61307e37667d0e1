#include <gtest/gtest.h>

#include <string>

#include "settings/FirstRunFiles.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::RealFiles;

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

TEST(SettingsFirstRun, CopiesBothFilesIntoAnEmptyDataFolder) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  const std::string data = temp.MakeFolder("data");
  temp.WriteFile("app/structures.nrp", "[Structures]\r\nS1=a\r\n");
  temp.WriteFile("app/settings.nrp", "[Main]\r\nVersion=1\r\n");
  CopyFirstRunFiles(RealFiles(), app, data);
  EXPECT_EQ(ReadWholeFile(data + "structures.nrp"), "[Structures]\r\nS1=a\r\n");
  EXPECT_EQ(ReadWholeFile(data + "settings.nrp"), "[Main]\r\nVersion=1\r\n");
}

TEST(SettingsFirstRun, NeverOverwritesTheUsersFiles) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  const std::string data = temp.MakeFolder("data");
  temp.WriteFile("app/structures.nrp", "shipped structures");
  temp.WriteFile("app/settings.nrp", "shipped settings");
  temp.WriteFile("data/structures.nrp", "my structures");
  temp.WriteFile("data/settings.nrp", "my settings");
  CopyFirstRunFiles(RealFiles(), app, data);
  EXPECT_EQ(ReadWholeFile(data + "structures.nrp"), "my structures");
  EXPECT_EQ(ReadWholeFile(data + "settings.nrp"), "my settings");
}

TEST(SettingsFirstRun, CopiesOnlyTheFileThatIsMissing) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  const std::string data = temp.MakeFolder("data");
  temp.WriteFile("app/structures.nrp", "shipped structures");
  temp.WriteFile("app/settings.nrp", "shipped settings");
  temp.WriteFile("data/settings.nrp", "my settings");
  CopyFirstRunFiles(RealFiles(), app, data);
  EXPECT_EQ(ReadWholeFile(data + "structures.nrp"), "shipped structures");
  EXPECT_EQ(ReadWholeFile(data + "settings.nrp"), "my settings");
}

TEST(SettingsFirstRun, FilesTheAppFolderLacksAreNotCreated) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  const std::string data = temp.MakeFolder("data");
  temp.WriteFile("app/settings.nrp", "shipped settings");
  CopyFirstRunFiles(RealFiles(), app, data);
  EXPECT_FALSE(Exists(data + "structures.nrp"));
  EXPECT_EQ(ReadWholeFile(data + "settings.nrp"), "shipped settings");
}

TEST(SettingsFirstRun, DataFolderUnderARegularFileGetsNothingAndNoCrash) {
  TempFolder temp;
  const std::string app = temp.MakeFolder("app");
  temp.WriteFile("app/settings.nrp", "shipped settings");
  const auto plain = temp.WriteFile("plain", "x");
  CopyFirstRunFiles(RealFiles(), app, plain + "/data/");
  EXPECT_EQ(ReadWholeFile(plain), "x");
}

}  // namespace
}  // namespace nomra::settings
