#include <gtest/gtest.h>

#include "shell/Startup.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::shell {
namespace {

class StartupTest : public testing::ListTest {
 protected:
  StartupPaths Prepare(const std::string& settingsText) {
    const std::string dataFolder = temp.MakeFolder("data");
    if (!settingsText.empty()) temp.WriteFile("data/settings.nrp", settingsText);
    return PrepareStartup(nomra::testing::RealFiles(), nomra::testing::RealLocations(), dataFolder);
  }
};

TEST_F(StartupTest, MissingSettingsGiveTheDefaults) {
  const StartupPaths paths = Prepare("");
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_TRUE(paths.dataFolderUsable);
  EXPECT_FALSE(options.checkExistence);
  EXPECT_TRUE(options.loadExifDates);
  EXPECT_FALSE(options.expertMode);
  EXPECT_EQ(options.securityQuestions, (std::array<bool, 3>{false, false, false}));
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(StartupTest, FlagsAreReadFromTheSettings) {
  const StartupPaths paths =
      Prepare("[Settings]\r\nCheckExistence=1\r\nLoadEXIFDates=0\r\nsecquest1=1\r\nsecquest3=1\r\nExpertMode=1\r\n");
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_TRUE(options.checkExistence);
  EXPECT_FALSE(options.loadExifDates);
  EXPECT_TRUE(options.expertMode);
  EXPECT_EQ(options.securityQuestions, (std::array<bool, 3>{true, false, true}));
}

TEST_F(StartupTest, ValueThatIsNoNumberIsShownAndTheDefaultStands) {
  const StartupPaths paths = Prepare("[Settings]\r\nCheckExistence=yes please\r\nExpertMode=1\r\n");
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_FALSE(options.checkExistence);
  EXPECT_TRUE(options.expertMode) << "the other keys are still read";
  ASSERT_EQ(frontEnd.faults.size(), 1u);
  EXPECT_NE(frontEnd.faults[0].find("CheckExistence"), std::string::npos);
}

TEST_F(StartupTest, GarbageLinesInTheSettingsAreIgnored) {
  const StartupPaths paths = Prepare("\x01\x02 garbage\r\n[[[\r\n=\r\n[Settings]\r\nnonsense\r\nCheckExistence=1\r\n");
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_TRUE(options.checkExistence);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(StartupTest, ProtocolFileIsCreatedWhenMissing) {
  const StartupPaths paths = Prepare("");
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_TRUE(testing::Exists(paths.dataFolder + "renamed.nrp"));
}

TEST_F(StartupTest, MissingDataFolderIsCreated) {
  const StartupPaths paths =
      PrepareStartup(nomra::testing::RealFiles(), nomra::testing::RealLocations(), temp.Path() + "new/levels/data");
  EXPECT_TRUE(paths.dataFolderUsable);
  EXPECT_TRUE(testing::Exists(temp.Path() + "new/levels/data/"));
  EXPECT_EQ(paths.settingsPath, temp.Path() + "new/levels/data/settings.nrp");
}

TEST_F(StartupTest, DataFolderThatCantBeMadeGivesDefaultsAndNoCrash) {
  temp.WriteFile("plain-file", "x");
  const StartupPaths paths =
      PrepareStartup(nomra::testing::RealFiles(), nomra::testing::RealLocations(), temp.Path() + "plain-file/data");
  EXPECT_FALSE(paths.dataFolderUsable);
  LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  EXPECT_TRUE(options.loadExifDates);
  EXPECT_FALSE(Ini(paths.settingsPath).Write("Settings", "x", "1"));
}

}  // namespace
}  // namespace nomra::shell
