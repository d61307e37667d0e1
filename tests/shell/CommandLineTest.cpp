#include <gtest/gtest.h>

#include "shell/CommandLine.h"
#include "support/ListFixture.h"

namespace nomra::shell {
namespace {

using Arguments = std::vector<std::string>;

TEST(SplitCommandLineTest, NoArgumentsLeaveOnlyTheEndMark) {
  EXPECT_EQ(SplitCommandLine(""), Arguments{""});
  EXPECT_EQ(SplitCommandLine("   "), Arguments{""});
}

TEST(SplitCommandLineTest, BlanksSeparateArguments) {
  EXPECT_EQ(SplitCommandLine("one  two three "), (Arguments{"one", "two", "three", ""}));
}

TEST(SplitCommandLineTest, QuotedPathWithBlanksArrivesWholeWithoutItsQuotes) {
  EXPECT_EQ(SplitCommandLine("\"/home/me/my photos/a b.jpg\" next"),
            (Arguments{"/home/me/my photos/a b.jpg", "next", ""}));
}

TEST(SplitCommandLineTest, QuotesInsideASwitchStayAndKeepItsPathWhole) {
  EXPECT_EQ(SplitCommandLine("/openfromfile=\"/home/me/a list.txt\" /runscript=x"),
            (Arguments{"/openfromfile=\"/home/me/a list.txt\"", "/runscript=x", ""}));
}

TEST(SplitCommandLineTest, UnclosedQuoteRunsToTheNextBlank) {
  EXPECT_EQ(SplitCommandLine("\"abc def"), (Arguments{"abc", "def", ""}));
  EXPECT_EQ(SplitCommandLine("\"abc"), (Arguments{"abc", ""}));
}

TEST(SplitCommandLineTest, UnclosedQuoteInsideASwitchRunsToTheNextBlank) {
  EXPECT_EQ(SplitCommandLine("/runscript=\"a b"), (Arguments{"/runscript=\"a", "b", ""}));
  EXPECT_EQ(SplitCommandLine("/runscript=\"ab"), (Arguments{"/runscript=\"ab", ""}));
}

TEST(SplitCommandLineTest, QuoteAfterTheBlankStartsAnArgumentOfItsOwn) {
  EXPECT_EQ(SplitCommandLine("ab \"c d\""), (Arguments{"ab", "c d", ""}));
}

TEST(SplitCommandLineTest, CharacterRightBehindTheClosingQuoteOfASwitchIsPassedOver) {
  EXPECT_EQ(SplitCommandLine("/x=\"a b\"c d"), (Arguments{"/x=\"a b\"", "d", ""}));
}

TEST(SplitCommandLineTest, EmptyQuotesGiveAnEmptyArgument) {
  EXPECT_EQ(SplitCommandLine("\"\" a"), (Arguments{"", "a", ""}));
}

TEST(ArgumentsFromArgvTest, EachEntryIsOneArgumentAsItStands) {
  char program[] = "nomra";
  char path[] = "/home/me/a b.jpg";
  char quoted[] = "/openfromfile=\"x y\"";
  char* argv[] = {program, path, quoted, nullptr};
  EXPECT_EQ(ArgumentsFromArgv(3, argv), (Arguments{"/home/me/a b.jpg", "/openfromfile=\"x y\"", ""}));
}

TEST(ArgumentsFromArgvTest, ProgramNameAloneGivesOnlyTheEndMark) {
  char program[] = "nomra";
  char* argv[] = {program, nullptr};
  EXPECT_EQ(ArgumentsFromArgv(1, argv), Arguments{""});
}

class RunCommandLineTest : public testing::ListTest {
 protected:
  RunCommandLineTest() {
    switches.openFromFile = [this](const std::string& path) {
      events.push_back("open " + path + " after " + std::to_string(state.list.Count()) + " rows");
    };
    switches.runScript = [this](const std::string& name) {
      events.push_back("script " + name + " after " + std::to_string(state.list.Count()) + " rows");
    };
  }

  CommandLineSwitches switches;
  std::vector<std::string> events;
};

TEST_F(RunCommandLineTest, NoArgumentsRunNothing) {
  RunCommandLine(SplitCommandLine(""), load, switches);
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_TRUE(events.empty());
  EXPECT_EQ(state.addCounter, 0);
}

TEST_F(RunCommandLineTest, ExistingFileIsAdded) {
  const std::string path = temp.WriteFile("photo.jpg", "x");
  RunCommandLine({path, ""}, load, switches);
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1).key, path);
}

TEST_F(RunCommandLineTest, ExistingFolderIsAddedWhole) {
  temp.WriteFile("album/a.jpg", "x");
  temp.WriteFile("album/b.jpg", "x");
  RunCommandLine({temp.Path() + "album", ""}, load, switches);
  EXPECT_EQ(state.list.Count(), 2);
}

TEST_F(RunCommandLineTest, QuotedPathWithBlanksIsAddedWhole) {
  const std::string path = temp.WriteFile("my photos/day one.jpg", "x");
  RunCommandLine(SplitCommandLine("\"" + path + "\""), load, switches);
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1).key, path);
}

TEST_F(RunCommandLineTest, MissingPathIsPassedOverInSilence) {
  options.checkExistence = false;
  const std::string path = temp.WriteFile("kept.jpg", "x");
  RunCommandLine({temp.Path() + "gone.jpg", path, ""}, load, switches);
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1).key, path);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(RunCommandLineTest, TwoPlainPathsAndASwitchAreHandledInOrder) {
  const std::string first = temp.WriteFile("first.jpg", "x");
  const std::string second = temp.WriteFile("second.jpg", "x");
  RunCommandLine(SplitCommandLine(first + " /runscript=tidy.nrs " + second), load, switches);
  EXPECT_EQ(events, std::vector<std::string>{"script tidy.nrs after 1 rows"});
  ASSERT_EQ(state.list.Count(), 2);
  EXPECT_EQ(state.list.Item(1).key, first);
  EXPECT_EQ(state.list.Item(2).key, second);
}

TEST_F(RunCommandLineTest, ListFileSwitchGetsThePathWithoutQuotes) {
  RunCommandLine(SplitCommandLine("/openfromfile=\"/home/me/a list.txt\""), load, switches);
  RunCommandLine({"/openfromfile=\"/home/\"me\"/b.txt\"", ""}, load, switches);
  EXPECT_EQ(events,
            (std::vector<std::string>{"open /home/me/a list.txt after 0 rows", "open /home/me/b.txt after 0 rows"}));
}

TEST_F(RunCommandLineTest, ScriptSwitchGetsTheNameWithoutQuotes) {
  RunCommandLine(SplitCommandLine("/runscript=\"20261115023303.nrs\""), load, switches);
  EXPECT_EQ(events, std::vector<std::string>{"script 20261115023303.nrs after 0 rows"});
}

TEST_F(RunCommandLineTest, SwitchesAreRecognisedInAnyCase) {
  RunCommandLine({"/OpenFromFile=a.txt", "/RUNSCRIPT=b.nrs", ""}, load, switches);
  EXPECT_EQ(events, (std::vector<std::string>{"open a.txt after 0 rows", "script b.nrs after 0 rows"}));
}

TEST_F(RunCommandLineTest, SwitchWithNothingBehindTheEqualsSignIsIgnored) {
  RunCommandLine({"/runscript=", "/openfromfile=", ""}, load, switches);
  EXPECT_TRUE(events.empty());
}

TEST_F(RunCommandLineTest, UnknownArgumentsArePassedOverInSilence) {
  const std::string path = temp.WriteFile("a.jpg", "x");
  RunCommandLine({"/quiet", "/runscripts=x", "/openfrom=x", "runscript=x", path, ""}, load, switches);
  EXPECT_TRUE(events.empty());
  EXPECT_EQ(state.list.Count(), 1);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(RunCommandLineTest, SwitchWithoutAHandlerIsPassedOver) {
  const std::string path = temp.WriteFile("a.jpg", "x");
  RunCommandLine({"/runscript=x", "/openfromfile=y", path, ""}, load, CommandLineSwitches{});
  EXPECT_EQ(state.list.Count(), 1);
}

TEST_F(RunCommandLineTest, EndMarkIsNotAnArgument) {
  const std::string path = temp.WriteFile("a.jpg", "x");
  RunCommandLine({path}, load, switches);
  EXPECT_EQ(state.list.Count(), 0);
}

}  // namespace
}  // namespace nomra::shell
