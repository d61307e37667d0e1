// --commit takes the pending names to disk; --protocol and --no-protocol
// decide whether the renames are logged.
#include <gtest/gtest.h>

#include <cctype>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

class CliCommit : public CliTest {
 protected:
  // Renames a.txt to b.txt in the list: a.txt is the only row selected.
  std::vector<std::string> EditAToB(std::vector<std::string> extra) const {
    std::vector<std::string> arguments{"--select", "a.txt", "--scope", "selected", "--edit", "b.txt"};
    arguments.insert(arguments.end(), extra.begin(), extra.end());
    arguments.push_back(files.Path());
    return arguments;
  }
  std::string Protocol() const { return ReadWholeFile(data.Path() + "renamed.nrp"); }
};

TEST_F(CliCommit, CommitRenamesOnDiskAndPrintsTheTable) {
  files.WriteFile("a.txt", "alpha");

  const CliResult result = Run(EditAToB({"--commit"}));

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_FALSE(Exists(files.Path() + "a.txt"));
  EXPECT_EQ(ReadWholeFile(files.Path() + "b.txt"), "alpha");
  EXPECT_EQ(result.out, "1 file, 1 folder, 0 changed\n");
}

TEST_F(CliCommit, WithoutCommitNothingOnDiskChanges) {
  files.WriteFile("a.txt", "alpha");

  const CliResult result = Run(EditAToB({}));

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "alpha");
  EXPECT_FALSE(Exists(files.Path() + "b.txt"));
  EXPECT_NE(result.out.find("a.txt -> b.txt"), std::string::npos) << result.out;
  // A missing protocol reads as empty: either way no rename is logged.
  EXPECT_EQ(Protocol(), "");
}

TEST_F(CliCommit, CommitRunsAfterEveryStepWhereverItStands) {
  files.WriteFile("a.txt", "alpha");
  std::vector<std::string> arguments{"--commit"};
  for (const std::string& argument : EditAToB({})) arguments.push_back(argument);

  const CliResult result = Run(arguments);

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(ReadWholeFile(files.Path() + "b.txt"), "alpha");
}

TEST_F(CliCommit, SwapOfTwoNamesWorks) {
  files.WriteFile("a.txt", "alpha");
  files.WriteFile("b.txt", "beta");

  const CliResult result = Run({"--scope", "selected", "--select", "a.txt", "--edit", "b.txt", "--select", "b.txt",
                                "--edit", "a.txt", "--commit", files.Path()});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "beta");
  EXPECT_EQ(ReadWholeFile(files.Path() + "b.txt"), "alpha");
}

TEST_F(CliCommit, BlockedRowFailsTheRunWithALineOnStderr) {
  files.WriteFile("a.txt", "alpha");
  files.WriteFile("b.txt", "beta");

  const CliResult result = Run(EditAToB({"--commit"}));

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: not renamed: \"" + files.Path() + "a.txt\" -> \"" + files.Path() +
                            "b.txt\": the target exists\n"),
            std::string::npos)
      << result.err;
  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "alpha");
  EXPECT_EQ(ReadWholeFile(files.Path() + "b.txt"), "beta");
  EXPECT_NE(result.out.find("a.txt -> b.txt"), std::string::npos) << "the row is still pending: " << result.out;
}

TEST_F(CliCommit, ProtocolOptionWritesOneRecord) {
  files.WriteFile("a.txt", "alpha");

  const CliResult result = Run(EditAToB({"--commit", "--protocol"}));

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  const std::string protocol = Protocol();
  const std::string expectedEnd = "\"" + files.Path() + "\"a.txt\"b.txt\r\n";
  ASSERT_EQ(protocol.size(), 14 + expectedEnd.size()) << protocol;
  for (std::size_t i = 0; i < 14; ++i) EXPECT_TRUE(std::isdigit(static_cast<unsigned char>(protocol[i]))) << protocol;
  EXPECT_TRUE(protocol.ends_with(expectedEnd)) << protocol;
}

TEST_F(CliCommit, SettingProtrenLogsRenames) {
  WriteSettings({"protren=1"});
  files.WriteFile("a.txt", "alpha");

  ASSERT_EQ(Run(EditAToB({"--commit"})).exitStatus, 0);

  EXPECT_TRUE(Protocol().ends_with("\"a.txt\"b.txt\r\n")) << Protocol();
}

TEST_F(CliCommit, NoProtocolOverridesTheSetting) {
  WriteSettings({"protren=1"});
  files.WriteFile("a.txt", "alpha");

  ASSERT_EQ(Run(EditAToB({"--commit", "--no-protocol"})).exitStatus, 0);

  EXPECT_EQ(Protocol(), "");
  EXPECT_TRUE(Exists(files.Path() + "b.txt"));
}

TEST_F(CliCommit, JsonCarriesTheReport) {
  files.WriteFile("a.txt", "alpha");
  files.WriteFile("b.txt", "beta");

  const CliResult result = Run(EditAToB({"--commit", "--json"}));

  EXPECT_EQ(result.exitStatus, 1);
  const JsonValue document = ParseJson(result.out);
  ASSERT_EQ(document["report"].items.size(), 1u);
  const JsonValue& row = document["report"][0];
  EXPECT_EQ(row["number"].number, 1);
  // A blocked row's report row carries the key of the list's row at its running number.
  EXPECT_EQ(row["key"].text, document["rows"][0]["key"].text);
  EXPECT_EQ(row["textKey"].text, "MsgText05");
  EXPECT_EQ(row["message"].text, "\"" + files.Path() + "a.txt\" -> \"" + files.Path() + "b.txt\": the target exists");
  EXPECT_EQ(document["changed"].number, 1);
}

TEST_F(CliCommit, JsonAfterASuccessfulCommitHasAnEmptyReportAndTheNewNames) {
  files.WriteFile("a.txt", "alpha");

  const JsonValue document = RunJson(EditAToB({"--commit"}));

  EXPECT_TRUE(document["report"].items.empty());
  EXPECT_EQ(ColumnOfRows(document, core::kColOldName), Names{"b.txt"});
  EXPECT_EQ(document["rows"][0]["key"].text, files.Path() + "b.txt");
}

}  // namespace
}  // namespace nomra::testing
