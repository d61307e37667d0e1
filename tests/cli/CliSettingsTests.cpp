// The data folder a run reads its settings from, and the questions the
// settings make the engine ask.
#include <gtest/gtest.h>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using CliSettings = CliTest;

TEST_F(CliSettings, NomraDataDirIsWhereTheSettingsAreRead) {
  WriteSettings({"CheckExistence=1"});
  const CliResult result = Run({files.Path() + "missing.txt"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_TRUE(result.err.empty()) << result.err;
}

TEST_F(CliSettings, DataDirOptionWinsOverNomraDataDir) {
  // The folder of the environment skips missing paths, the option's doesn't.
  WriteSettings({"CheckExistence=1"});
  TempFolder optionData;
  optionData.WriteFile("settings.nrp", "[Settings]\r\nCheckExistence=0\r\n");
  const std::string missing = files.Path() + "missing.txt";

  const CliResult withOption = Run({"--data-dir", optionData.Path(), missing});
  EXPECT_EQ(withOption.exitStatus, 1);
  EXPECT_NE(withOption.err.find(missing), std::string::npos) << withOption.err;

  const CliResult withoutOption = Run({missing});
  EXPECT_EQ(withoutOption.exitStatus, 0) << withoutOption.err;
}

TEST_F(CliSettings, DataDirOptionAloneIsUsed) {
  TempFolder optionData;
  optionData.WriteFile("settings.nrp", "[Settings]\r\nCheckExistence=1\r\n");
  CliLaunch launch;
  launch.arguments = {"--data-dir", optionData.Path(), files.Path() + "missing.txt"};
  const CliResult result = RunCli(launch);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
}

TEST_F(CliSettings, SettingThatIsNotANumberIsReportedAndTheRunGoesOn) {
  WriteSettings({"CheckExistence=often"});
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--json", file});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: "), std::string::npos) << result.err;
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColOldName), Names{"a.txt"});
}

TEST_F(CliSettings, UndoQuestionIsNotedAndItsDefaultYesLetsTheUndoHappen) {
  WriteSettings({"secquest1=1"});
  const std::string file = files.WriteFile("a.txt");

  const CliResult result = Run({"--json", "--edit", "b.txt", "--undo", file});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "question MsgText07: answered Yes\n");
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColNewName), Names{"a.txt"});
}

TEST_F(CliSettings, RejectQuestionDefaultsToNoSoNothingIsRejected) {
  WriteSettings({"secquest3=1"});
  const std::string file = files.WriteFile("a.txt");

  const CliResult result = Run({"--json", "--edit", "b.txt", "--reject", file});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "question MsgText04: answered No\n");
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColNewName), Names{"b.txt"});
}

TEST_F(CliSettings, YesAnswersTheRejectQuestionSoTheChangesGo) {
  WriteSettings({"secquest3=1"});
  const std::string file = files.WriteFile("a.txt");

  const CliResult result = Run({"--json", "--yes", "--edit", "b.txt", "--reject", file});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "question MsgText04: answered Yes\n");
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColNewName), Names{"a.txt"});
}

TEST_F(CliSettings, WithoutSecurityQuestionsNothingIsAsked) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--edit", "b.txt", "--undo", "--edit", "c.txt", "--reject", file});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.err.empty()) << result.err;
}

}  // namespace
}  // namespace nomra::testing
