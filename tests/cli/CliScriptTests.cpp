// Scripts and name structures played from the command line, and the list of
// stored scripts.
#include <gtest/gtest.h>

#include <filesystem>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using CliScript = CliTest;

// U+0090: the stand-in of a stored blank.
const std::string kStandIn = "\xC2\x90";

// The two-step example of the script format, as a user would write it by hand.
std::string HolidayScript() {
  return "[Main]\r\nSteps=2\r\nName=Holiday pictures\r\n\r\n[1]\r\nType=5\r\ntxtPr=Rome" + kStandIn + "2009" +
         kStandIn + "\r\n\r\n[2]\r\nType=5\r\ntxtSu=_x\r\n";
}

TEST_F(CliScript, ScriptFileGivesThePendingNamesOfItsSteps) {
  files.WriteFile("pics/beach.jpg");
  files.WriteFile("pics/notes");
  const std::string script = files.WriteFile("holiday.nrs", HolidayScript());

  const JsonValue document = RunJson({"--script", script, files.Path() + "pics"});

  EXPECT_EQ(RowNamed(document, "beach.jpg")["columns"].items[core::kColNewName].text, "Rome 2009 beach_x.jpg");
  EXPECT_EQ(RowNamed(document, "notes")["columns"].items[core::kColNewName].text, "Rome 2009 notes_x");
}

TEST_F(CliScript, BareNameIsLookedForInTheScriptsFolder) {
  files.WriteFile("a.txt");
  data.WriteFile("Script/20261115023303.nrs", HolidayScript());

  const JsonValue document = RunJson({"--script", "20261115023303.nrs", files.Path() + "a.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "Rome 2009 a_x.txt");
}

TEST_F(CliScript, QuotesAroundTheNameAreDropped) {
  files.WriteFile("a.txt");
  data.WriteFile("Script/20261115023303.nrs", HolidayScript());

  const JsonValue document = RunJson({"--script", "\"20261115023303.nrs\"", files.Path() + "a.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "Rome 2009 a_x.txt");
}

TEST_F(CliScript, MissingScriptIsAFaultOfItsStepAndTheOthersRun) {
  files.WriteFile("a.txt");

  const CliResult result = Run({"--script", "gone.nrs", "--structure", "b.txt", "--json", files.Path() + "a.txt"});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("--script: no script 'gone.nrs'"), std::string::npos) << result.err;
  EXPECT_EQ(RowNamed(ParseJson(result.out), "a.txt")["columns"][core::kColNewName].text, "b.txt");
}

TEST_F(CliScript, StepsOfUnknownTypesArePassedOver) {
  files.WriteFile("a.txt");
  const std::string script = files.WriteFile("s.nrs",
                                             "[Main]\r\nSteps=3\r\n[1]\r\nType=11\r\ntxtPr=no\r\n[2]\r\nType="
                                             "0\r\ntxtPr=no\r\n[3]\r\nType=5\r\ntxtPr=yes_\r\n");

  const JsonValue document = RunJson({"--script", script, files.Path() + "a.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "yes_a.txt");
}

TEST_F(CliScript, ScriptWithoutStepsChangesNothing) {
  files.WriteFile("a.txt");
  const std::string script = files.WriteFile("s.nrs", "[Main]\r\nName=empty\r\n[1]\r\nType=5\r\ntxtPr=no\r\n");

  const CliResult result = Run({"--script", script, "--json", files.Path() + "a.txt"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(RowNamed(ParseJson(result.out), "a.txt")["columns"][core::kColNewName].text, "a.txt");
}

TEST_F(CliScript, ScriptThatIsNotUtf8IsReadAsWindows1252) {
  files.WriteFile("a.txt");
  // "é" as the single byte of the Western code page, and 0x90 as the blank stand-in.
  const std::string script = files.WriteFile("s.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=5\r\ntxtPr=\xE9t\xE9\x90\r\n");

  const JsonValue document = RunJson({"--script", script, files.Path() + "a.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "\xC3\xA9t\xC3\xA9 a.txt");
}

TEST_F(CliScript, ScriptsPlayInOrderWithTheOtherSteps) {
  files.WriteFile("a.txt");
  const std::string prefix = files.WriteFile("p.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=5\r\ntxtPr=p_\r\n");

  const JsonValue document =
      RunJson({"--structure", "base.txt", "--script", prefix, "--script", prefix, files.Path() + "a.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "p_p_base.txt");
}

TEST_F(CliScript, ScriptActsOnTheScopeOnly) {
  files.WriteFile("a.txt");
  files.WriteFile("b.txt");
  const std::string prefix = files.WriteFile("p.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=5\r\ntxtPr=p_\r\n");

  const JsonValue document = RunJson(
      {"--select", "b.txt", "--scope", "selected", "--script", prefix, files.Path() + "a.txt", files.Path() + "b.txt"});

  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "a.txt");
  EXPECT_EQ(RowNamed(document, "b.txt")["columns"].items[core::kColNewName].text, "p_b.txt");
}

TEST_F(CliScript, StructureWithoutTagsBecomesTheNameAsItStands) {
  files.WriteFile("a.txt");
  const JsonValue document = RunJson({"--structure", "Report 2024.txt", files.Path() + "a.txt"});
  EXPECT_EQ(RowNamed(document, "a.txt")["columns"].items[core::kColNewName].text, "Report 2024.txt");
}

TEST_F(CliScript, StructureFaultSaysWhichRowStoppedAndWhy) {
  files.WriteFile("a.txt");
  const CliResult result = Run({"--structure", "</UC>x<UC>", "--json", files.Path() + "a.txt"});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("--structure: Row 1 of 1, a.txt: the case mark </UC> stands before its <UC>"),
            std::string::npos)
      << result.err;
  EXPECT_EQ(RowNamed(ParseJson(result.out), "a.txt")["columns"][core::kColNewName].text, "a.txt");
}

TEST_F(CliScript, EvalPrintsEachResultAloneAndChangesNothing) {
  const std::string path = files.WriteFile("Music/Rock/01 - Intro.mp3");
  const CliResult result = Run({"eval", "<PATH>: <UC><NAMEPART(\" - \",2)></UC><.EXT>", path});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "Rock: INTRO.mp3\n");
  EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(CliScript, EvalAsJsonGivesPathAndResult) {
  const std::string path = files.WriteFile("a b.txt");
  const JsonValue document = ParseJson(Run({"eval", "<WC><NAME></WC>", "--json", path}).out);
  ASSERT_EQ(document.items.size(), 1u);
  EXPECT_EQ(document.items[0]["path"].text, path);
  EXPECT_EQ(document.items[0]["result"].text, "A B");
}

TEST_F(CliScript, EvalFaultOfOneFileLeavesTheOthersPrinted) {
  const std::string good = files.WriteFile("ab.txt");
  const std::string bad = files.WriteFile("a-b.txt");
  const CliResult result = Run({"eval", "<NAMEPART(\"-\",0)>|<NAME>", good, bad});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_EQ(result.out, "|ab\n");
  EXPECT_NE(result.err.find(bad), std::string::npos) << result.err;
}

TEST_F(CliScript, EvalWithoutPathIsAUsageFault) {
  const CliResult result = Run({"eval", "<NAME>"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("no PATH given"), std::string::npos) << result.err;
}

TEST_F(CliScript, ScriptsCommandListsFileNamesAndDisplayTexts) {
  data.WriteFile("Script/20261115023303.nrs", HolidayScript());
  data.WriteFile("Script/notes.txt", "not a script");

  const CliResult result = Run({"scripts"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "20261115023303.nrs\tHoliday pictures [2026-11-15, 02:33:03]\n");
}

TEST_F(CliScript, ScriptsCommandAsJson) {
  data.WriteFile("Script/20261115023303.nrs", HolidayScript());

  const JsonValue document = ParseJson(Run({"scripts", "--json"}).out);

  ASSERT_EQ(document.items.size(), 1u);
  EXPECT_EQ(document.items[0]["file"].text, "20261115023303.nrs");
  EXPECT_EQ(document.items[0]["display"].text, "Holiday pictures [2026-11-15, 02:33:03]");
}

TEST_F(CliScript, ScriptsCommandWithoutScriptsFolderListsNothing) {
  const CliResult result = Run({"scripts"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "");
  EXPECT_FALSE(std::filesystem::exists(data.Path() + "Script"));
}

TEST_F(CliScript, ScriptsCommandRefusesUnknownOptions) {
  const CliResult result = Run({"scripts", "--bogus"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("--bogus"), std::string::npos);
}

TEST_F(CliScript, HelpNamesTheScriptOptionsAndCommand) {
  const CliResult result = Run({"--help"});
  for (const char* text : {"--script FILE", "--structure TEXT", "scripts [--data-dir DIR] [--json]"}) {
    EXPECT_NE(result.out.find(text), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace nomra::testing
