// The renaming actions as options of nomra-cli: --replace, --replace-regex,
// --number and --trim, run by the built binary; each gives the names its
// dialog's script step gives.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

class CliActions : public CliTest {
 protected:
  std::vector<std::string> Paths(const Names& names) const {
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(files.WriteFile(name));
    return paths;
  }
  Names NewNames(const Names& names, std::vector<std::string> steps) const {
    const std::vector<std::string> paths = Paths(names);
    steps.insert(steps.end(), paths.begin(), paths.end());
    return ColumnOfRows(RunJson(steps), core::kColNewName);
  }
  // A stored script of one step, in the data folder's scripts.
  void WriteScript(const std::string& fileName, const std::string& step) const {
    data.WriteFile("Script/" + fileName, "[Main]\r\nSteps=1\r\nName=one step\r\n\r\n[1]\r\n" + step);
  }
};

TEST_F(CliActions, ReplaceChangesEveryOccurrenceCaseSensitively) {
  EXPECT_EQ(NewNames({"a_b_c.txt", "A_B.txt"}, {"--replace", "_", " "}), (Names{"a b c.txt", "A B.txt"}));
  EXPECT_EQ(NewNames({"abAB.txt"}, {"--replace", "ab", "x"}), Names{"xAB.txt"});
}

TEST_F(CliActions, ReplaceWithNothingRemovesAndNeverEmptiesAStem) {
  EXPECT_EQ(NewNames({"Copy of a.txt", "Copy of .txt"}, {"--replace", "Copy of ", ""}),
            (Names{"a.txt", "Copy of .txt"}));
}

TEST_F(CliActions, ReplaceNeverTouchesTheExtension) {
  EXPECT_EQ(NewNames({"txt.txt"}, {"--replace", "txt", "doc"}), Names{"doc.txt"});
}

TEST_F(CliActions, RegularExpressionWithGroups) {
  EXPECT_EQ(NewNames({"01 - Intro.mp3", "Cover.jpg"}, {"--replace-regex", "^(\\d+) - (.*)$", "$2 ($1)"}),
            (Names{"Intro (01).mp3", "Cover.jpg"}));
}

TEST_F(CliActions, BadPatternIsAUsageErrorNamingTheCharacter) {
  const CliResult result = Run({"--replace-regex", "a(b", "x", files.WriteFile("a.txt")});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("the pattern can't be used"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("at character 4"), std::string::npos) << result.err;
  EXPECT_TRUE(result.out.empty());
}

TEST_F(CliActions, ReplacementNamingAMissingGroupIsAUsageError) {
  const CliResult result = Run({"--replace-regex", "(a)", "$2", files.WriteFile("a.txt")});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("no group 2"), std::string::npos) << result.err;
}

TEST_F(CliActions, ReplacementWithAForbiddenCharacterIsRefusedBeforeAnythingRuns) {
  const CliResult result = Run({"--replace", "a", "x/y", files.WriteFile("a.txt")});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("which no file name may hold"), std::string::npos) << result.err;
}

TEST_F(CliActions, ReplaceNeedsBothValues) {
  const CliResult result = Run({files.WriteFile("a.txt"), "--replace", "a"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("needs FIND WITH"), std::string::npos) << result.err;
}

TEST_F(CliActions, NumberingWithTheDialogsDefaultsIsAPrefix) {
  EXPECT_EQ(NewNames({"a.txt", "b.txt"}, {"--number", ""}), (Names{"1a.txt", "2b.txt"}));
}

TEST_F(CliActions, NumberingAsSuffixInAutoWidthWithASeparator) {
  Names names;
  for (int i = 0; i < 10; ++i) names.push_back("f" + std::to_string(i) + ".jpg");
  const Names got = NewNames(names, {"--number", "width=auto,place=suffix,sep= - "});
  EXPECT_EQ(got.front(), "f0 - 01.jpg");
  EXPECT_EQ(got.back(), "f9 - 10.jpg");
}

TEST_F(CliActions, NumberingInLettersAndHexadecimalWithStartAndStep) {
  EXPECT_EQ(NewNames({"a.txt", "b.txt"}, {"--number", "start=26,system=upper,width=2,sep=_"}),
            (Names{" Z_a.txt", "AA_b.txt"}));
  EXPECT_EQ(NewNames({"c.txt", "d.txt"}, {"--number", "start=255,step=-1,system=hex,width=4"}),
            (Names{"00FFc.txt", "00FEd.txt"}));
}

TEST_F(CliActions, NumberingAtAPositionAndInPlaceOfTheName) {
  EXPECT_EQ(NewNames({"abcd.txt"}, {"--number", "place=left:2,sep=-,start=7"}), Names{"ab-7-cd.txt"});
  EXPECT_EQ(NewNames({"x.jpg", "y.jpg"}, {"--number", "name=Trip,sep=_,place=suffix"}),
            (Names{"Trip_1.jpg", "Trip_2.jpg"}));
}

TEST_F(CliActions, BadNumberingSettingsAreUsageErrors) {
  const std::string file = files.WriteFile("a.txt");
  for (const char* spec : {"start=x", "width=16", "system=roman", "place=middle", "sep=~", "colour=red"}) {
    const CliResult result = Run({"--number", spec, file});
    EXPECT_EQ(result.exitStatus, 2) << spec;
    EXPECT_NE(result.err.find("--number"), std::string::npos) << spec << ": " << result.err;
  }
}

TEST_F(CliActions, TrimToTheFirstOrLastCharactersOrARange) {
  EXPECT_EQ(NewNames({"abcdef.txt"}, {"--trim", "first:3"}), Names{"abc.txt"});
  EXPECT_EQ(NewNames({"uvwxyz.txt"}, {"--trim", "last:2"}), Names{"yz.txt"});
  EXPECT_EQ(NewNames({"ghijkl.txt"}, {"--trim", "range:2:4"}), Names{"hij.txt"});
}

TEST_F(CliActions, TrimToAPathLength) {
  const Names got = NewNames({"short.txt"}, {"--trim", "path:256"});
  EXPECT_EQ(got, Names{"short.txt"});
  EXPECT_EQ(NewNames({"abcdefghij.txt"}, {"--trim", "path:" + std::to_string(files.Path().size() + 8)}),
            Names{"abcde.txt"});
}

TEST_F(CliActions, BadTrimIsAUsageError) {
  const std::string file = files.WriteFile("a.txt");
  for (const char* spec : {"first", "first:0", "range:3", "path:5", "middle"}) {
    const CliResult result = Run({"--trim", spec, file});
    EXPECT_EQ(result.exitStatus, 2) << spec;
  }
}

TEST_F(CliActions, ReplaceOptionAndScriptStepGiveTheSameNames) {
  WriteScript("replace.nrs", "Type=6\r\nopttxt2Repl=-1\r\ntxtToRep=_\r\noptReplace=-1\r\ntxtRepBy=\xC2\x90\r\n");
  const std::string file = files.WriteFile("a_b_c.txt");
  const Names byScript = ColumnOfRows(RunJson({"--script", "replace.nrs", file}), core::kColNewName);
  const Names byOption = ColumnOfRows(RunJson({"--replace", "_", " ", file}), core::kColNewName);
  EXPECT_EQ(byOption, Names{"a b c.txt"});
  EXPECT_EQ(byScript, byOption);
}

TEST_F(CliActions, NumberOptionAndScriptStepGiveTheSameNames) {
  WriteScript("number.nrs",
              "Type=1\r\ntxtInit=5\r\ntxtInc=5\r\ncmbAnz=0\r\noptSuffix=-1\r\nchkIntChr=1\r\ncmbIChr=4\r\n");
  const std::vector<std::string> paths = Paths({"a.txt", "b.txt"});
  std::vector<std::string> script{"--script", "number.nrs"};
  std::vector<std::string> option{"--number", "start=5,step=5,width=auto,place=suffix,sep=_"};
  script.insert(script.end(), paths.begin(), paths.end());
  option.insert(option.end(), paths.begin(), paths.end());
  const Names byScript = ColumnOfRows(RunJson(script), core::kColNewName);
  EXPECT_EQ(byScript, (Names{"a_05.txt", "b_10.txt"}));
  EXPECT_EQ(ColumnOfRows(RunJson(option), core::kColNewName), byScript);
}

TEST_F(CliActions, TrimOptionAndScriptStepGiveTheSameNames) {
  WriteScript("trim.nrs", "Type=10\r\nopt1(1)=-1\r\ntxtPos(0)=2\r\n");
  const std::string file = files.WriteFile("abcdef.txt");
  const Names byScript = ColumnOfRows(RunJson({"--script", "trim.nrs", file}), core::kColNewName);
  EXPECT_EQ(byScript, Names{"ab.txt"});
  EXPECT_EQ(ColumnOfRows(RunJson({"--trim", "first:2", file}), core::kColNewName), byScript);
}

TEST_F(CliActions, HelpShowsEachActionWithAnExample) {
  const CliResult result = Run({"--help"});
  ASSERT_EQ(result.exitStatus, 0);
  for (const char* line :
       {"--replace FIND WITH", "--replace-regex PATTERN WITH", "--number SPEC",
        "--trim first:N|last:N|range:A:B|short|path:N", "Example: nomra-cli --replace ",
        "Example: nomra-cli --replace-regex ", "Example: nomra-cli --number ", "Example: nomra-cli --trim "}) {
    EXPECT_NE(result.out.find(line), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace nomra::testing
