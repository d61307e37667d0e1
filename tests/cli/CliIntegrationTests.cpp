// "Rename with Nomra" in the user's file managers: nomra-cli
// --install-integration and --remove-integration over a home of their own.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

constexpr char kUserThunarList[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<actions>\n<action>\n\t<icon>utilities-terminal</icon>\n"
    "\t<name>Open Terminal Here</name>\n\t<unique-id>1-1</unique-id>\n\t<command>exo-open --launch "
    "TerminalEmulator %f</command>\n\t<patterns>*</patterns>\n\t<directories/>\n</action>\n</actions>\n";

class CliIntegration : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string cli = NOMRA_CLI_PATH;
    program = cli.substr(0, cli.rfind('/') + 1) + "nomra";
    struct stat st {};
    if (stat(program.c_str(), &st) != 0) GTEST_SKIP() << "built without the window";
  }

  CliResult Run(const std::string& option) const {
    CliLaunch launch;
    launch.arguments = {option};
    launch.environment["HOME"] = home.Path();
    launch.environment["XDG_DATA_HOME"] = home.Path() + ".local/share";
    launch.environment["XDG_CONFIG_HOME"] = home.Path() + ".config";
    launch.environment["XDG_CONFIG_DIRS"] = system.Path();
    return RunCli(launch);
  }

  std::string Dolphin() const { return home.Path() + ".local/share/kio/servicemenus/nomra-rename.desktop"; }
  std::string Nautilus() const { return home.Path() + ".local/share/nautilus/scripts/Rename with Nomra"; }
  std::string Thunar() const { return home.Path() + ".config/Thunar/uca.xml"; }

  static bool Executable(const std::string& path) {
    struct stat st {};
    return stat(path.c_str(), &st) == 0 && (st.st_mode & S_IXUSR) != 0;
  }

  static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
  }

  std::string program;
  TempFolder home;
  TempFolder system;  // the folders of $XDG_CONFIG_DIRS
};

TEST_F(CliIntegration, InstallPutsAnEntryIntoEachFileManagerAndRemoveTakesThemAway) {
  home.WriteFile(".config/Thunar/uca.xml", kUserThunarList);

  const CliResult installed = Run("--install-integration");
  EXPECT_EQ(installed.exitStatus, 0) << installed.err;
  EXPECT_TRUE(installed.err.empty()) << installed.err;

  const std::string dolphin = ReadWholeFile(Dolphin());
  EXPECT_NE(dolphin.find("Exec=\"" + program + "\" %F\n"), std::string::npos) << dolphin;
  EXPECT_NE(dolphin.find("Name=Rename with Nomra\n"), std::string::npos) << dolphin;
  EXPECT_TRUE(Executable(Dolphin())) << "Dolphin runs service menus of the user only when executable";
  const std::string nautilus = ReadWholeFile(Nautilus());
  EXPECT_TRUE(nautilus.starts_with("#!/bin/sh\n")) << nautilus;
  EXPECT_NE(nautilus.find("exec '" + program + "' $NAUTILUS_SCRIPT_SELECTED_FILE_PATHS\n"), std::string::npos);
  EXPECT_TRUE(Executable(Nautilus()));
  const std::string thunar = ReadWholeFile(Thunar());
  EXPECT_NE(thunar.find("<name>Open Terminal Here</name>"), std::string::npos) << "the user's action stays";
  EXPECT_NE(thunar.find("<command>\"" + program + "\" %F</command>"), std::string::npos) << thunar;
  EXPECT_TRUE(thunar.ends_with("</action>\n</actions>\n")) << thunar;
  for (const std::string& path : {Dolphin(), Nautilus(), Thunar()}) {
    EXPECT_NE(installed.out.find(path), std::string::npos) << installed.out;
  }

  const CliResult removed = Run("--remove-integration");
  EXPECT_EQ(removed.exitStatus, 0) << removed.err;
  EXPECT_FALSE(Exists(Dolphin()));
  EXPECT_FALSE(Exists(Nautilus()));
  EXPECT_EQ(ReadWholeFile(Thunar()), kUserThunarList);
}

TEST_F(CliIntegration, InstallingAgainKeepsOneThunarActionAndUpdatesTheFiles) {
  home.WriteFile(".config/Thunar/uca.xml", kUserThunarList);
  ASSERT_EQ(Run("--install-integration").exitStatus, 0);
  const CliResult again = Run("--install-integration");
  EXPECT_EQ(again.exitStatus, 0) << again.err;
  EXPECT_NE(again.out.find("updated " + Dolphin()), std::string::npos) << again.out;
  EXPECT_EQ(Count(ReadWholeFile(Thunar()), "nomra-rename-with-nomra"), 1u);
  EXPECT_EQ(Count(ReadWholeFile(Thunar()), "<action>"), 2u);
}

TEST_F(CliIntegration, AFileOfTheUsersOwnIsLeftAloneAndReported) {
  const std::string own = home.WriteFile(".local/share/nautilus/scripts/Rename with Nomra", "#!/bin/sh\necho mine\n");
  const CliResult installed = Run("--install-integration");
  EXPECT_EQ(installed.exitStatus, 1);
  EXPECT_NE(installed.err.find(own), std::string::npos) << installed.err;
  EXPECT_EQ(ReadWholeFile(own), "#!/bin/sh\necho mine\n");
  EXPECT_TRUE(Exists(Dolphin())) << "the others are still installed";

  const CliResult removed = Run("--remove-integration");
  EXPECT_EQ(removed.exitStatus, 1);
  EXPECT_EQ(ReadWholeFile(own), "#!/bin/sh\necho mine\n");
  EXPECT_FALSE(Exists(Dolphin()));
}

TEST_F(CliIntegration, ThunarStartsFromTheSystemsActionsWhenTheUserHasNone) {
  system.WriteFile("Thunar/uca.xml", kUserThunarList);
  ASSERT_EQ(Run("--install-integration").exitStatus, 0);
  const std::string thunar = ReadWholeFile(Thunar());
  EXPECT_NE(thunar.find("<name>Open Terminal Here</name>"), std::string::npos) << thunar;
  EXPECT_NE(thunar.find("<name>Rename with Nomra</name>"), std::string::npos) << thunar;
  EXPECT_EQ(ReadWholeFile(system.Path() + "Thunar/uca.xml"), kUserThunarList);
}

TEST_F(CliIntegration, WithoutAnyListOfThunarActionsThunarIsPassedOver) {
  const CliResult installed = Run("--install-integration");
  EXPECT_EQ(installed.exitStatus, 0) << installed.err;
  EXPECT_FALSE(Exists(Thunar()));
  EXPECT_NE(installed.out.find("Thunar: passed over"), std::string::npos) << installed.out;
}

TEST_F(CliIntegration, APathBesideTheOptionIsBadUsage) {
  CliLaunch launch;
  launch.arguments = {"--install-integration", home.Path()};
  const CliResult result = RunCli(launch);
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("take no PATH"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace nomra::testing
