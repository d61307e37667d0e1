// Loading the paths of the command line into the list.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using CliLoading = CliTest;

std::vector<std::string> Sorted(std::vector<std::string> texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

TEST_F(CliLoading, FolderLoadsWholeWithEveryColumnOfEveryFile) {
  files.WriteFile("top/a.txt", "12345");
  files.WriteFile("top/b.txt");
  files.WriteFile("top/sub/c.txt");
  const std::string top = files.Path() + "top/";

  const JsonValue document = RunJson({top});

  ASSERT_EQ(document["rows"].items.size(), 3u);
  for (const JsonValue& row : document["rows"].items) {
    ASSERT_EQ(row["columns"].items.size(), 21u);
    const std::string& folder = row["columns"][core::kColPath].text;
    const std::string& name = row["columns"][core::kColOldName].text;
    EXPECT_EQ(row["key"].text, folder + name);
    EXPECT_EQ(row["columns"][core::kColNewName].text, name);
    EXPECT_FALSE(row["selected"].boolean);
    EXPECT_TRUE(folder == top || folder == top + "sub/") << folder;
  }
  EXPECT_EQ(Sorted(ColumnOfRows(document, core::kColOldName)), (std::vector<std::string>{"a.txt", "b.txt", "c.txt"}));
  EXPECT_EQ(RowNamed(document, "a.txt")["columns"][core::kColSize].text, "5");
  EXPECT_EQ(RowNamed(document, "c.txt")["columns"][core::kColPath].text, top + "sub/");
  EXPECT_EQ(document["files"].number, 3);
  EXPECT_EQ(document["folders"].number, 2);
  EXPECT_EQ(document["changed"].number, 0);
  EXPECT_EQ(document["report"].kind, JsonValue::Kind::Array);
}

TEST_F(CliLoading, FileGivenTwiceIsListedOnce) {
  const std::string file = files.WriteFile("a.txt");
  files.WriteFile("b.txt");

  const JsonValue document = RunJson({file, file, files.Path()});

  EXPECT_EQ(Sorted(ColumnOfRows(document, core::kColOldName)), (std::vector<std::string>{"a.txt", "b.txt"}));
  EXPECT_EQ(document["files"].number, 2);
}

TEST_F(CliLoading, RelativePathBecomesAbsolute) {
  files.WriteFile("a.txt");
  CliLaunch launch;
  launch.arguments = {"--json", "a.txt"};
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  launch.workingFolder = files.Path();
  const CliResult result = RunCli(launch);
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  const JsonValue document = ParseJson(result.out);
  EXPECT_EQ(document["rows"][0]["key"].text, files.Path() + "a.txt");
}

TEST_F(CliLoading, MissingPathIsReportedAndTheOtherPathsStillLoad) {
  const std::string first = files.WriteFile("a.txt");
  const std::string missing = files.Path() + "missing.txt";
  const std::string last = files.WriteFile("b.txt");

  const CliResult result = Run({"--json", first, missing, last});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: "), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(missing), std::string::npos) << result.err;
  const JsonValue document = ParseJson(result.out);
  EXPECT_EQ(ColumnOfRows(document, core::kColOldName), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST_F(CliLoading, WithCheckExistenceMissingPathIsSkippedSilently) {
  WriteSettings({"CheckExistence=1"});
  const std::string file = files.WriteFile("a.txt");

  const CliResult result = Run({"--json", files.Path() + "missing.txt", file});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.err.empty()) << result.err;
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColOldName), std::vector<std::string>{"a.txt"});
}

TEST_F(CliLoading, PathsLoadBeforeStepsThatStandBeforeThem) {
  const std::string file = files.WriteFile("a.txt");
  const JsonValue document = RunJson({"--edit", "renamed.txt", file});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), std::vector<std::string>{"renamed.txt"});
  EXPECT_EQ(document["changed"].number, 1);
}

}  // namespace
}  // namespace nomra::testing
