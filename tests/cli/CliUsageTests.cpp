// How nomra-cli reads its command line: help, version and bad usage.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using CliUsage = CliTest;

constexpr const char* kHint = "Try 'nomra-cli --help'.";

TEST_F(CliUsage, HelpDocumentsEveryOptionWithAnExampleAndExitsZero) {
  const CliResult result = Run({"--help"});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.err.empty()) << result.err;
  for (const char* option :
       {"--playlist", "--select", "--scope", "--sort", "--undo", "--reject", "--edit", "--commit", "--protocol",
        "--no-protocol", "--data-dir", "--json", "--yes", "--help", "-h", "--version"}) {
    EXPECT_NE(result.out.find(option), std::string::npos) << option;
  }
  // One example line per option and per command: each head stands two
  // blanks in (an option of a command four), its text and example deeper.
  std::size_t heads = 0;
  std::size_t examples = 0;
  std::istringstream lines(result.out);
  for (std::string line; std::getline(lines, line);) {
    const bool head = (line.size() > 2 && line.starts_with("  ") && line[2] != ' ') || line.starts_with("    -");
    if (head) ++heads;
    if (line.find("Example: nomra-cli") != std::string::npos) ++examples;
  }
  EXPECT_GE(heads, 16u);
  EXPECT_EQ(examples, heads);
}

TEST_F(CliUsage, ShortHelpOptionGivesTheSameHelp) {
  const CliResult longForm = Run({"--help"});
  const CliResult shortForm = Run({"-h"});
  EXPECT_EQ(shortForm.exitStatus, 0);
  EXPECT_EQ(shortForm.out, longForm.out);
}

TEST_F(CliUsage, HelpWinsOverMissingPaths) {
  const CliResult result = Run({"--select", "*.txt", "--help"});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_NE(result.out.find("Usage: nomra-cli"), std::string::npos);
}

TEST_F(CliUsage, VersionPrintsTheProgramAndItsVersion) {
  const CliResult result = Run({"--version"});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.out.starts_with("nomra-cli ")) << result.out;
  EXPECT_NE(result.out.find_first_of("0123456789"), std::string::npos) << result.out;
}

TEST_F(CliUsage, VersionNamesTheProgramFolderBesideTheBuiltProgramAndItsLanguageFiles) {
  const CliResult result = Run({"--version"});
  EXPECT_EQ(result.exitStatus, 0);
  const std::string cli = NOMRA_CLI_PATH;
  const std::string folder = cli.substr(0, cli.rfind('/') + 1);
  EXPECT_NE(result.out.find("\nprogram folder: " + folder + "\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\nlanguage files: Deutsch.lng English.lng\n"), std::string::npos) << result.out;
}

TEST_F(CliUsage, NoArgumentsIsBadUsageWithTheHint) {
  const CliResult result = Run({});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_TRUE(result.out.empty()) << result.out;
  EXPECT_NE(result.err.find("no PATH"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

TEST_F(CliUsage, OptionsWithoutAnyPathAreBadUsage) {
  const CliResult result = Run({"--json", "--undo"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_TRUE(result.out.empty()) << result.out;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

TEST_F(CliUsage, UnknownOptionIsBadUsageAndNamesTheOption) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--frobnicate", file});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_TRUE(result.out.empty()) << result.out;
  EXPECT_NE(result.err.find("--frobnicate"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

TEST_F(CliUsage, MissingOptionArgumentIsBadUsage) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({file, "--edit"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("--edit"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

TEST_F(CliUsage, BadScopeValueIsBadUsage) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--scope", "some", file});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_TRUE(result.out.empty()) << result.out;
  EXPECT_NE(result.err.find("'some'"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

TEST_F(CliUsage, BadSortValuesAreBadUsage) {
  const std::string file = files.WriteFile("a.txt");
  for (const char* value : {"0", "22", "name", "new:down", "3x", ""}) {
    const CliResult result = Run({"--sort", value, file});
    EXPECT_EQ(result.exitStatus, 2) << value;
    EXPECT_NE(result.err.find(kHint), std::string::npos) << value << ": " << result.err;
  }
}

TEST_F(CliUsage, FlagOptionGivenAValueIsBadUsage) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--json=yes", file});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("--json"), std::string::npos) << result.err;
}

TEST_F(CliUsage, ValueMayFollowAnEqualsSign) {
  files.WriteFile("a.txt");
  const JsonValue document = RunJson({"--edit=b.txt", files.Path()});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), std::vector<std::string>{"b.txt"});
}

TEST_F(CliUsage, DoubleDashMakesTheRestPaths) {
  files.WriteFile("--json");
  CliLaunch launch;
  launch.arguments = {"--", "--json"};
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  launch.workingFolder = files.Path();
  const CliResult result = RunCli(launch);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  // The table, not JSON: "--json" was a file to load.
  EXPECT_EQ(result.out, "1 file, 1 folder, 0 changed\n");
}

}  // namespace
}  // namespace nomra::testing
