// What nomra-cli prints: the table for people, JSON for programs.
#include <gtest/gtest.h>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using CliOutput = CliTest;

TEST_F(CliOutput, TableGroupsPendingChangesByFolderAndEndsWithTheSummary) {
  const std::string first = files.MakeFolder("one");
  const std::string second = files.MakeFolder("two");
  files.WriteFile("one/a.txt");
  files.WriteFile("one/b.txt");
  files.WriteFile("two/c.txt");
  files.WriteFile("two/keep.txt");

  const CliResult result = Run({"--select", "a.txt;b.txt;c.txt", "--scope", "selected", "--edit", "new.txt",
                                files.Path() + "one", files.Path() + "two"});

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  // Folder order is the list's; within a folder the file system's order rules.
  const std::string oneBlockA = first + "\n  a.txt -> new.txt\n  b.txt -> new.txt\n";
  const std::string oneBlockB = first + "\n  b.txt -> new.txt\n  a.txt -> new.txt\n";
  const std::string twoBlock = second + "\n  c.txt -> new.txt\n";
  const std::string summary = "4 files, 2 folders, 3 changed\n";
  EXPECT_TRUE(result.out == oneBlockA + twoBlock + summary || result.out == oneBlockB + twoBlock + summary)
      << result.out;
  EXPECT_EQ(result.out.find("keep.txt"), std::string::npos);
}

TEST_F(CliOutput, TableKeepsOneHeadingPerFolderWhenASortMixesFolders) {
  const std::string first = files.MakeFolder("one");
  const std::string second = files.MakeFolder("two");
  files.WriteFile("one/a1.txt");
  files.WriteFile("two/a2.txt");
  files.WriteFile("one/a3.txt");

  const CliResult result = Run({"--edit", "z.txt", "--sort", "old", files.Path()});

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, first + "\n  a1.txt -> z.txt\n  a3.txt -> z.txt\n" + second + "\n  a2.txt -> z.txt\n" +
                            "3 files, 2 folders, 3 changed\n");
}

TEST_F(CliOutput, SummaryUsesTheSingularForOne) {
  const std::string file = files.WriteFile("a.txt");
  const CliResult result = Run({"--edit", "b.txt", file});
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, files.Path() + "\n  a.txt -> b.txt\n1 file, 1 folder, 1 changed\n");
}

TEST_F(CliOutput, SummaryWithoutChangesIsTheOnlyLine) {
  files.WriteFile("a.txt");
  files.WriteFile("b.txt");
  const CliResult result = Run({files.Path()});
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "2 files, 1 folder, 0 changed\n");
}

TEST_F(CliOutput, NameWithAByteThatIsNotUtf8ShowsAsEscapeAndTheRowStillWorks) {
  CreateFileNamed("bad\xE9.txt");
  CreateFileNamed("plain.txt");

  const CliResult result =
      Run({"--json", "--select", "bad*", "--scope", "selected", "--edit", "good.txt", files.Path()});

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_NE(result.out.find("\"bad\\udce9.txt\""), std::string::npos) << result.out;
  const JsonValue document = ParseJson(result.out);
  const JsonValue& row = RowNamed(document, "bad\xE9.txt");
  EXPECT_EQ(row["key"].text, files.Path() + "bad\xE9.txt");
  EXPECT_TRUE(row["selected"].boolean);
  EXPECT_EQ(row["columns"][core::kColNewName].text, "good.txt");
  EXPECT_EQ(document["changed"].number, 1);
}

TEST_F(CliOutput, TablePrintsAByteThatIsNotUtf8AsItIs) {
  const std::string file = CreateFileNamed("bad\xE9.txt");
  const CliResult result = Run({"--edit", "good.txt", file});
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_NE(result.out.find("  bad\xE9.txt -> good.txt\n"), std::string::npos) << result.out;
}

TEST_F(CliOutput, JsonEscapesQuoteBackslashAndControlCharacters) {
  CreateFileNamed("a\"b.txt");
  CreateFileNamed("c\\d.txt");
  CreateFileNamed("line\nbreak\x01.txt");

  const CliResult result = Run({"--json", files.Path()});

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_NE(result.out.find("\"a\\\"b.txt\""), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"c\\\\d.txt\""), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"line\\nbreak\\u0001.txt\""), std::string::npos) << result.out;
  const JsonValue document = ParseJson(result.out);
  EXPECT_EQ(RowNamed(document, "a\"b.txt")["key"].text, files.Path() + "a\"b.txt");
  EXPECT_EQ(RowNamed(document, "line\nbreak\x01.txt")["columns"][core::kColNewName].text, "line\nbreak\x01.txt");
}

TEST_F(CliOutput, JsonPassesNonAsciiTextAsItIs) {
  files.WriteFile("Grüße €.txt");
  const CliResult result = Run({"--json", files.Path()});
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_NE(result.out.find("\"Grüße €.txt\""), std::string::npos) << result.out;
  EXPECT_EQ(result.out.find("\\u"), std::string::npos) << result.out;
}

TEST_F(CliOutput, JsonHoldsTheCountsAndAnEmptyReport) {
  files.WriteFile("x/a.txt");
  files.WriteFile("y/b.txt");
  files.WriteFile("y/c.txt");
  const JsonValue document = RunJson({"--select", "c.txt", "--scope", "selected", "--edit", "d.txt", files.Path()});
  EXPECT_EQ(document["files"].number, 3);
  EXPECT_EQ(document["folders"].number, 2);
  EXPECT_EQ(document["changed"].number, 1);
  EXPECT_TRUE(document["report"].items.empty());
  EXPECT_EQ(document.members.size(), 5u);
}

}  // namespace
}  // namespace nomra::testing
